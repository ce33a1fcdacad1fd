// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordFigures.h"

#include "Month.h"

#include <algorithm>

namespace {

using MonthSpan = QList<std::shared_ptr<const Month>>;

DaySpan daysOfMonth(const Month& month)
{
    const QDate first(month.year, month.month, 1);
    return {first, first.addMonths(1).addDays(-1)};
}

RecordTotal totalOf(const RecordContents& contents, DaySpan span, const MonthSpan& months)
{
    QList<const Month*> counted;
    RecordTotal total{.span = span};
    for (const auto& month : months) {
        counted.append(month.get());
        for (const Day& day : month->days.value()) {
            if (!day.isInMonth())
                continue;
            const CountedDay how = contents.counting.count(month->dateOf(day.id), day.state, false);
            total.outOfOffice += how.isOutOfOffice;
            total.vacationDays += day.state == DayState::VACATION_DAY;
        }
    }
    total.statistics =
        attendanceStatistics(counted, contents.goals, contents.vacationDaysCountAsInOffice, true, contents.counting);
    return total;
}

/// The total of so many months up to one, if they end a quarter or year that is whole in the period.
std::optional<RecordTotal> totalEndingWith(const RecordContents& contents, qsizetype last, int count)
{
    const Month& month = *contents.months.at(last);
    const DaySpan span{QDate(month.year, month.month, 1).addMonths(1 - count), daysOfMonth(month).last};
    if (month.month % count != 0 || !contents.period.contains(span.first) || !contents.period.contains(span.last))
        return {};
    return totalOf(contents, span, contents.months.sliced(last + 1 - count, count));
}

} // namespace

RecordTotal totalOfMonth(const RecordContents& contents, const std::shared_ptr<const Month>& month)
{
    const DaySpan whole = daysOfMonth(*month);
    const DaySpan span{std::max(whole.first, contents.period.first), std::min(whole.last, contents.period.last)};
    return totalOf(contents, span, {month});
}

QList<RecordTotal> recordTotals(const RecordContents& contents)
{
    constexpr int monthsOfQuarter = 3;
    constexpr int monthsOfYear = 12;
    QList<RecordTotal> totals;
    for (qsizetype i = 0; i < contents.months.size(); ++i) {
        totals.append(totalOfMonth(contents, contents.months.at(i)));
        for (const int count : {monthsOfQuarter, monthsOfYear}) {
            if (const auto total = totalEndingWith(contents, i, count))
                totals.append(*total);
        }
    }
    if (totals.isEmpty() || totals.last().span != contents.period)
        totals.append(totalOf(contents, contents.period, contents.months));
    return totals;
}

QList<RecordedRule> recordedRules(const RecordContents& contents)
{
    const QDate today = contents.made.date();
    QList<RecordedRule> recorded;
    for (const AttendanceRule& rule : contents.rules) {
        RecordedRule one{rule, spansKept(rule, contents.ruleDays, contents.period, today, contents.weekStart), {}};
        for (QDate date = contents.period.first; date <= contents.period.last;
             date = spanOf(rule, date, contents.weekStart).last.addDays(1)) {
            if (const auto progress = ruleProgress(rule, contents.ruleDays, date, today, contents.weekStart))
                one.spans.append(*progress);
        }
        if (!one.spans.isEmpty())
            recorded.append(one);
    }
    return recorded;
}
