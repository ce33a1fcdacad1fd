// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlanSubject.h"

#include "AppSettings.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "Goal.h"
#include "Month.h"
#include "Plan.h"
#include "StatisticsTexts.h"
#include "ViewSettings.h"

#include <algorithm>

namespace {

// More would hide the days.
constexpr int mostGoals = 3;

DaySpan daysOfMonths(const QList<std::shared_ptr<Month>>& months)
{
    const QDate last(months.last()->year, months.last()->month, 1);
    return {QDate(months.first()->year, months.first()->month, 1), last.addDays(last.daysInMonth() - 1)};
}

AttendanceStatistics statisticsOf(const CalendarParts& parts, const QList<std::shared_ptr<Month>>& months)
{
    QList<const Month*> counted;
    for (const auto& month : months)
        counted.append(month.get());
    return attendanceStatistics(counted, parts.settings.daysPerWeekGoals, parts.settings.vacationDaysCountAsInOffice,
                                false, parts.counting.counting());
}

QString nameOf(const ValuedGoal& goal)
{
    const QString description = goal.goal->desc;
    return description.isEmpty() ? goalValueText(goal.value) : description;
}

} // namespace

PlanSubject PlanSubject::ofGoals(const CalendarParts& parts, const QList<std::shared_ptr<Month>>& months)
{
    const DaySpan span = daysOfMonths(months);
    const auto lines = [parts, months](const CountedDays& days) {
        const AttendanceStatistics statistics = statisticsOf(parts, months);
        QList<Line> shown;
        for (const ValuedGoal& goal : goalsToPlan(statistics).mid(0, mostGoals))
            shown.append({{.name = nameOf(goal)}, goalProgress(goal, statistics, days, parts.clock.today())});
        return shown;
    };
    return {.days = span, .span = span, .lines = lines};
}

PlanSubject PlanSubject::ofRule(const CalendarParts& parts, const AttendanceRule& rule, QDate reference)
{
    const Qt::DayOfWeek weekStart = parts.viewSettings.weekStart();
    const DaySpan whole = spanOf(rule, reference, weekStart);
    return {.days = whole,
            .span = {std::max(whole.first, rule.from.value_or(whole.first)),
                     std::min(whole.last, rule.until.value_or(whole.last))},
            .weekdays = rule.weekdays,
            .countsPlanned = rule.subject == AttendanceRule::Subject::InOffice,
            .lines = [parts, rule, reference, weekStart](const CountedDays& days) -> QList<Line> {
                const auto progress = ruleProgress(rule, days, reference, parts.clock.today(), weekStart);
                return progress ? QList<Line>{{rule, *progress}} : QList<Line>();
            }};
}
