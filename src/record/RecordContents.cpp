// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordContents.h"

#include "CountingRecords.h"
#include "DayMarker.h"
#include "DayRecords.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoredDays.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

using MonthList = QList<std::shared_ptr<const Month>>;

/// A copy of a month with its days of the period.
std::shared_ptr<const Month> monthWithin(DaySpan period, QDate first, const Month* stored)
{
    auto copy = std::make_shared<Month>(first.year(), first.month());
    QList<Day> days = stored != nullptr ? stored->days : copy->days;
    if (!period.contains(first) || !period.contains(first.addMonths(1).addDays(-1)))
        days.removeIf([&](const Day& day) { return !day.isInMonth() || !period.contains(copy->dateOf(day.id)); });
    copy->days = days;
    return copy;
}

MonthList monthsOfPeriod(ModelContext& context, DaySpan period)
{
    std::map<std::pair<int, int>, std::shared_ptr<Month>> stored;
    for (const auto& month : context.fetchMonths(period.first, period.last))
        stored.try_emplace({month->year, month->month}, month);
    MonthList months;
    for (QDate first = period.first.addDays(1 - period.first.day()); first <= period.last; first = first.addMonths(1)) {
        const auto found = stored.find({first.year(), first.month()});
        months.append(monthWithin(period, first, found == stored.end() ? nullptr : found->second.get()));
    }
    return months;
}

AppSettings::Goals copiesOf(const AppSettings::Goals& goals)
{
    AppSettings::Goals copies;
    for (const auto& goal : goals)
        copies.append(std::make_shared<Goal>(goal->id, goal->wantedDaysPerWeek, goal->desc));
    return copies;
}

DaySpan spanOfRules(const QList<AttendanceRule>& rules, DaySpan period, Qt::DayOfWeek weekStart)
{
    if (rules.isEmpty())
        return {};
    DaySpan whole = period;
    for (const AttendanceRule& rule : rules) {
        whole.first = std::min(whole.first, spanOf(rule, period.first, weekStart).first);
        whole.last = std::max(whole.last, spanOf(rule, period.last, weekStart).last);
    }
    return whole;
}

} // namespace

DayRecord RecordContents::recordOn(QDate date) const
{
    const auto found = std::ranges::lower_bound(days, date, {}, &DayRecord::date);
    return found != days.end() && found->date == date ? *found : DayRecord{.date = date};
}

RecordContents recordContents(const DayMarker& marker, const CountingRecords& counting, const AppSettings& settings,
                              DaySpan period, Qt::DayOfWeek weekStart, const QDateTime& now)
{
    const Counting howDaysCount = counting.counting();
    const QList<AttendanceRule> rules = counting.rules();
    const bool vacationCounts = settings.vacationDaysCountAsInOffice;
    ModelContext& context = marker.context();
    return {.period = period,
            .made = now,
            .days = dayRecords(marker, period),
            .months = monthsOfPeriod(context, period),
            .goals = copiesOf(settings.daysPerWeekGoals),
            .rules = rules,
            .ruleDays = countedDays(context, spanOfRules(rules, period, weekStart), howDaysCount, vacationCounts),
            .weekStart = weekStart,
            .counting = howDaysCount,
            .vacationDaysCountAsInOffice = vacationCounts,
            .leavesOutVacation = counting.leavesOutVacation(),
            .kinds = counting.absenceKinds(),
            .workWeeks = counting.workWeeks()};
}
