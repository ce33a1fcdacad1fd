// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Weekdays.h"

#include <QDate>
#include <QString>

/// Where a day off comes from. The numbers are stored and never change.
enum class DayOffSource { Hand = 1, Holidays = 2, File = 3 };

/// A date that is no workday, such as a public holiday. Of each date there is at most one.
struct DayOff {
    QDate date;
    /// May be empty.
    QString name = {};
    DayOffSource source = DayOffSource::Hand;

    bool operator==(const DayOff&) const = default;
};

/// A region whose public holidays are days off. At most one is stored.
struct HolidayRegion {
    /// As the holiday rules name it, such as "DE-BY".
    QString id;
    /// The last year whose holidays have been added.
    int lastYear = 0;

    bool operator==(const HolidayRegion&) const = default;
};

/// The weekdays that a person works from a date on, until the next such date. Before the first it is Monday to Friday.
struct WorkWeek {
    QDate from;
    Weekdays weekdays = Weekdays::mondayToFriday();

    bool operator==(const WorkWeek&) const = default;
};

/// What counts, where it is not a record of its own. At most one is stored; none is the same as a default one.
struct CountingChoices {
    /// Vacation days are no workdays.
    bool leavesOutVacation = false;

    bool operator==(const CountingChoices&) const = default;
};

/// The weekdays on which a person usually comes to the office. At most one is stored; none is the same as a default
/// one.
struct UsualWeek {
    Weekdays weekdays = {};
    /// Plans these days in each month that is new.
    bool plansNewMonths = false;

    bool operator==(const UsualWeek&) const = default;
};
