// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Weekdays.h"

#include <QDate>
#include <QString>
#include <QUuid>

#include <optional>

/// How many days an employer wants in the office, or allows out of it. The numbers of the enumerators are stored and
/// never change.
struct AttendanceRule {
    enum class Bound { AtLeast = 1, AtMost = 2 };
    /// Average days per week of five workdays, per cent of the workdays, or a number of days.
    enum class Unit { DaysPerWeek = 1, PercentOfWorkdays = 2, Days = 3 };
    /// Days in the office, or days out of office.
    enum class Subject { InOffice = 1, OutOfOffice = 2 };
    /// `LastWeeks` are the week of a day and those before it. Weeks begin where the calendar's rows do.
    enum class Span { Week = 1, TwoWeeks = 2, Month = 3, Quarter = 4, Year = 5, LastWeeks = 6 };

    /// The range of amounts, both included: 0.01 to 366.
    static constexpr int smallestAmount = 1;
    static constexpr int largestAmount = 36600;
    static constexpr int mostWeeks = 53;

    QUuid id = {};
    QString name = {};
    Bound bound = Bound::AtLeast;
    /// In hundredths of the unit.
    int amount = 300;
    Unit unit = Unit::DaysPerWeek;
    Subject subject = Subject::InOffice;
    /// Counts only the days out of office of this kind, if it is one (see AbsenceKind).
    int absenceKind = 0;
    /// Only these days of the week count, both as days and as workdays.
    Weekdays weekdays = Weekdays::all();
    Span span = Span::Month;
    /// A day in the first of the two weeks, of any pair; the pairs before and after follow from it.
    std::optional<QDate> anchor = {};
    /// The month, 1 to 12, in which a year begins, and with it a quarter.
    int firstMonth = 1;
    /// The number of weeks, 1 to `mostWeeks`, of `LastWeeks`.
    int weeks = 1;
    /// The first and the last day on which the rule holds.
    std::optional<QDate> from = {};
    std::optional<QDate> until = {};
    /// Rules are listed by this number.
    int position = 0;

    bool operator==(const AttendanceRule&) const = default;
};
