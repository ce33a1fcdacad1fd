// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "DayState.h"
#include "WorkTime.h"

#include <QHash>
#include <QList>

#include <memory>

/// How one day counts.
struct CountedDay {
    bool isWorkday = false;
    /// In the office, or counted as such.
    bool isInOffice = false;
    /// Out of office, and counted as such.
    bool isOutOfOffice = false;
    bool isPlanned = false;
    /// The kind of absence of a day out of office; 0 for none.
    int absenceKind = 0;

    bool operator==(const CountedDay&) const = default;
};

/// What a person has chosen about how days count. A value that is cheap to copy.
class Counting {
public:
    /// In any order. Of one date, and of one kind, the last counts.
    struct Choices {
        bool leavesOutVacation = false;
        QList<DayOff> daysOff = {};
        QList<WorkWeek> workWeeks = {};
        QList<AbsenceKind> kinds = {};
        QHash<QDate, int> absences = {};
    };

    /// Nothing chosen: Monday to Friday are workdays, and each state counts as what it says.
    Counting() = default;
    explicit Counting(Choices choices);

    /// Whether any figure can differ from those without choices.
    [[nodiscard]] bool isUsed() const { return m_choices != nullptr; }

    /// Whether the weekday of a date is worked.
    [[nodiscard]] bool isScheduled(QDate date) const;
    /// Whether a date is a workday, whatever its state: its weekday is worked, and it is no day off.
    [[nodiscard]] bool isWorkday(QDate date) const;
    /// Null if the date is none.
    [[nodiscard]] const DayOff* dayOff(QDate date) const;
    /// The kind of absence of a date; 0 for none.
    [[nodiscard]] int absenceKind(QDate date) const;
    [[nodiscard]] CountedDay count(QDate date, DayState state, bool vacationDaysCountAsInOffice) const;

    /// Whether both are copies of one.
    bool operator==(const Counting&) const = default;

private:
    [[nodiscard]] Treatment treatmentOf(int kind) const;

    std::shared_ptr<const Choices> m_choices;
};
