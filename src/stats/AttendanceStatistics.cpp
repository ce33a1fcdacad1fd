// SPDX-License-Identifier: GPL-3.0-or-later
#include "AttendanceStatistics.h"

#include "Month.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double workdaysPerWeek = 5.0;

double daysPerWeek(qint64 days, qint64 workdays)
{
    return static_cast<double>(days) / static_cast<double>(workdays) * workdaysPerWeek;
}

// Counts every cell, as the count of office days does: only the count of workdays leaves out the filler cells.
qint64 plannedCount(const Month& month)
{
    return std::ranges::count(month.days.value(), DayState::WILL_BE_IN_OFFICE, &Day::state);
}

QList<ValuedGoal> goalsWithValue(const AppSettings::Goals& goals)
{
    QList<ValuedGoal> valid;
    valid.reserve(goals.size());
    for (const auto& goal : goals) {
        if (const auto value = goal->value())
            valid.append({goal, *value});
    }
    return valid;
}

std::optional<ValuedGoal> targetAmong(const QList<ValuedGoal>& goals, double average)
{
    if (goals.isEmpty())
        return std::nullopt;
    const ValuedGoal* target = nullptr;
    for (const ValuedGoal& goal : goals) {
        if (average < goal.value && (target == nullptr || goal.value < target->value))
            target = &goal;
    }
    return target != nullptr ? *target : goals.last();
}

double highestValue(const QList<ValuedGoal>& goals)
{
    return goals.isEmpty() ? 0.0 : std::ranges::max(goals, {}, &ValuedGoal::value).value;
}

// A bar without a scale makes 0/0, which is drawn as nothing.
double clampedFraction(double fraction)
{
    return fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
}

// Cells outside the month as well, like Month::inOfficeCount().
qint64 inOfficeCount(const Month& month, bool vacationDaysCountAsInOffice, const Counting& counting)
{
    if (!counting.isUsed())
        return month.inOfficeCount(vacationDaysCountAsInOffice);
    return std::ranges::count_if(month.days.value(), [&](const Day& day) {
        return counting.count(month.dateOf(day.id), day.state, vacationDaysCountAsInOffice).isInOffice;
    });
}

} // namespace

AttendanceStatistics attendanceStatistics(const QList<const Month*>& months, const AppSettings::Goals& daysPerWeekGoals,
                                          bool vacationDaysCountAsInOffice, bool showWillBeInOfficeStats,
                                          const Counting& counting)
{
    AttendanceStatistics result;
    for (const Month* month : months) {
        result.workdays += workdayCount(*month, counting);
        result.inOffice += inOfficeCount(*month, vacationDaysCountAsInOffice, counting);
        result.planned += plannedCount(*month);
    }
    result.average = daysPerWeek(result.inOffice, result.workdays);
    if (showWillBeInOfficeStats)
        result.prediction = daysPerWeek(result.inOffice + result.planned, result.workdays);
    result.validGoals = goalsWithValue(daysPerWeekGoals);
    result.targetGoal = targetAmong(result.validGoals, result.average);
    result.highestGoalValue = highestValue(result.validGoals);
    if (result.targetGoal)
        result.remainingDays = neededDays(result.targetGoal->value, result.workdays) - result.inOffice;
    return result;
}

qint64 workdayCount(const Month& month, const Counting& counting)
{
    if (!counting.isUsed())
        return month.workdayCount();
    return std::ranges::count_if(month.days.value(), [&](const Day& day) {
        return day.isInMonth() && counting.count(month.dateOf(day.id), day.state, false).isWorkday;
    });
}

qint64 neededDays(double value, qint64 workdays)
{
    constexpr double beyond = 0x1p63;
    const double days = std::ceil(value * static_cast<double>(workdays) / workdaysPerWeek);
    if (!(days >= -beyond && days < beyond))
        qFatal("A goal of %g days per week needs more days than can be counted", value);
    return static_cast<qint64>(days);
}

BarFractions barFractions(const AttendanceStatistics& statistics)
{
    const double scale = statistics.highestGoalValue / workdaysPerWeek;
    const auto fraction = [scale](double value) { return clampedFraction(value / workdaysPerWeek / scale); };

    BarFractions fractions{
        .progress = fraction(statistics.average), .prediction = fraction(statistics.prediction), .markers = {}};
    for (const ValuedGoal& goal : statistics.validGoals)
        fractions.markers.append(fraction(goal.value));
    return fractions;
}

double shownAverage(const AttendanceStatistics& statistics)
{
    return std::isfinite(statistics.average) ? statistics.average : 0.0;
}
