// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceStatistics.h"
#include "RuleProgress.h"

#include <QHash>
#include <QList>

/// The states that a person tries for days that are still open.
using TriedStates = QHash<QDate, DayState>;

/// The days with what is tried. Days that are not open, or not among them, stay as they are.
[[nodiscard]] CountedDays withTried(const CountedDays& days, const TriedStates& tried, const Counting& counting,
                                    bool vacationDaysCountAsInOffice);

/// Whether a day can be planned, or its plan be dropped: a workday that is unknown, or any planned day.
[[nodiscard]] bool canBePlanned(const CountedDays::Entry& day);

/// The workdays of these weekdays, from today on, that are unknown.
[[nodiscard]] QList<QDate> daysToPlan(const CountedDays& days, Weekdays weekdays, QDate today);

/// The goals that are not reached, the smallest first; if all are reached, the target.
[[nodiscard]] QList<ValuedGoal> goalsToPlan(const AttendanceStatistics& statistics);

/// How far a goal is reached, in the form of a rule and with the figures of the tracker. `days` are those of its
/// months.
[[nodiscard]] RuleProgress goalProgress(const ValuedGoal& goal, const AttendanceStatistics& statistics,
                                        const CountedDays& days, QDate today);

/// A week of a plan, with what can be done in it.
struct PlanWeek {
    /// Seven days, also of the weeks in which the plan begins and ends.
    DaySpan days;
    /// Unknown workdays from today on, of the weekdays that count.
    qint64 freeDays = 0;

    bool operator==(const PlanWeek&) const = default;
};

/// The weeks in which days of a span are still to come; of a span that is over, all of its weeks. `days` includes it.
[[nodiscard]] QList<PlanWeek> planWeeks(const CountedDays& days, DaySpan span, Weekdays weekdays, QDate today,
                                        Qt::DayOfWeek firstDayOfWeek);

/// What is still to be planned.
struct PlanPace {
    /// Negative if more is planned than needed.
    qint64 daysToPlan = 0;
    qint64 freeDays = 0;
    /// How many of them to plan in a full week; 0 if only one week is left.
    double perWeek = 0.0;
};

[[nodiscard]] PlanPace planPace(const RuleProgress& progress, const QList<PlanWeek>& weeks);
