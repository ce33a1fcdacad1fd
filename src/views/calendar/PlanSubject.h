// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "RuleProgress.h"

#include <functional>
#include <memory>

class Month;

/// What days are planned for: the goals of a tracker, or a rule.
struct PlanSubject {
    struct Line {
        /// A goal has a rule of its name.
        AttendanceRule rule;
        RuleProgress progress;
    };

    /// Of the months of a tracker.
    [[nodiscard]] static PlanSubject ofGoals(const CalendarParts& parts, const QList<std::shared_ptr<Month>>& months);
    /// In the span to which `reference` belongs.
    [[nodiscard]] static PlanSubject ofRule(const CalendarParts& parts, const AttendanceRule& rule, QDate reference);

    /// The days that are counted.
    DaySpan days;
    /// Those of them that can be planned.
    DaySpan span;
    Weekdays weekdays = Weekdays::all();
    /// Whether planned days count at all.
    bool countsPlanned = true;
    /// The progress with these days, which are `days`: the goals to plan for, of which the first matters most; or the
    /// rule. Empty if there is none.
    std::function<QList<Line>(const CountedDays&)> lines;
};
