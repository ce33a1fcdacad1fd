// SPDX-License-Identifier: GPL-3.0-or-later
#include "Plan.h"

#include <algorithm>

namespace {

bool isStillOpen(DayState state)
{
    return state == DayState::UNKNOWN || state == DayState::WILL_BE_IN_OFFICE;
}

DaySpan common(DaySpan a, DaySpan b)
{
    return {std::max(a.first, b.first), std::min(a.last, b.last)};
}

} // namespace

CountedDays withTried(const CountedDays& days, const TriedStates& tried, const Counting& counting,
                      bool vacationDaysCountAsInOffice)
{
    const auto entries = days.in(days.span());
    const auto stateOn = [&](QDate date) {
        const DayState stored = entries[static_cast<std::size_t>(days.span().first.daysTo(date))].state;
        return isStillOpen(stored) ? tried.value(date, stored) : stored;
    };
    return {days.span(), stateOn, counting, vacationDaysCountAsInOffice};
}

bool canBePlanned(const CountedDays::Entry& day)
{
    return day.counted.isPlanned || (day.counted.isWorkday && day.state == DayState::UNKNOWN);
}

QList<QDate> daysToPlan(const CountedDays& days, Weekdays weekdays, QDate today)
{
    QList<QDate> dates;
    QDate date = days.span().first;
    for (const CountedDays::Entry& day : days.in(days.span())) {
        if (date >= today && weekdays.contains(date) && day.counted.isWorkday && day.state == DayState::UNKNOWN)
            dates.append(date);
        date = date.addDays(1);
    }
    return dates;
}

QList<ValuedGoal> goalsToPlan(const AttendanceStatistics& statistics)
{
    QList<ValuedGoal> goals = statistics.validGoals;
    goals.removeIf([&](const ValuedGoal& goal) { return statistics.average >= goal.value; });
    std::ranges::stable_sort(goals, {}, &ValuedGoal::value);
    if (goals.isEmpty() && statistics.targetGoal)
        goals.append(*statistics.targetGoal);
    return goals;
}

RuleProgress goalProgress(const ValuedGoal& goal, const AttendanceStatistics& statistics, const CountedDays& days,
                          QDate today)
{
    RuleProgress progress{.span = days.span(),
                          .wanted = neededDays(goal.value, statistics.workdays),
                          .counted = statistics.inOffice,
                          .workdays = statistics.workdays};
    qint64 possible = 0;
    for (const CountedDays::Entry& day : days.in(common(days.span(), {today, days.span().last}))) {
        const bool isLeft = day.counted.isWorkday && isStillOpen(day.state);
        progress.workdaysLeft += isLeft;
        progress.planned += day.counted.isPlanned;
        possible += isLeft || day.counted.isPlanned;
    }
    conclude(progress, AttendanceRule::Bound::AtLeast, possible);
    return progress;
}

QList<PlanWeek> planWeeks(const CountedDays& days, DaySpan span, Weekdays weekdays, QDate today,
                          Qt::DayOfWeek firstDayOfWeek)
{
    const QDate start = today <= span.last ? std::max(span.first, today) : span.first;
    QList<PlanWeek> weeks;
    for (QDate date = start; date <= span.last; date = weeks.last().days.last.addDays(1)) {
        PlanWeek week{.days = spanOf({.span = AttendanceRule::Span::Week}, date, firstDayOfWeek)};
        QDate day = date;
        for (const CountedDays::Entry& entry : days.in(common(week.days, {date, span.last}))) {
            week.freeDays +=
                day >= today && weekdays.contains(day) && entry.counted.isWorkday && entry.state == DayState::UNKNOWN;
            day = day.addDays(1);
        }
        weeks.append(week);
    }
    return weeks;
}

PlanPace planPace(const RuleProgress& progress, const QList<PlanWeek>& weeks)
{
    PlanPace pace{.daysToPlan = progress.remaining() - progress.planned};
    qint64 fullest = 0; // in which all days are to come, if there is one
    for (const PlanWeek& week : weeks) {
        pace.freeDays += week.freeDays;
        fullest = std::max(fullest, week.freeDays);
    }
    if (pace.freeDays > fullest)
        pace.perWeek = static_cast<double>(pace.daysToPlan * fullest) / static_cast<double>(pace.freeDays);
    return pace;
}
