// SPDX-License-Identifier: GPL-3.0-or-later
#include "UsualWeekPlanner.h"

#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Month.h"
#include "Plan.h"
#include "StoreError.h"
#include "StoredDays.h"
#include "StoredMonths.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logUsualWeek, "pellory.marking", QtInfoMsg)

DaySpan daysOfMonth(const YearMonth& month)
{
    const QDate first(month.year, month.month, 1);
    return {first, first.addDays(first.daysInMonth() - 1)};
}

} // namespace

qsizetype UsualWeekPlanner::plan(DaySpan span)
{
    const QList<QDate> days = daysIn(span);
    mark(days);
    return days.size();
}

std::shared_ptr<Month> UsualWeekPlanner::findOrCreateMonth(ModelContext& context, QDate date)
{
    const QList<DaySpan> added = newMonths(context, {{date.year(), date.month()}});
    auto month = ::findOrCreateMonth(context, date);
    planNew(added);
    return month;
}

QList<std::shared_ptr<Month>> UsualWeekPlanner::quarterMonths(ModelContext& context, const YearQuarter& quarter)
{
    QList<YearMonth> numbers;
    for (const int number : quarter.months())
        numbers.append({quarter.year, number});
    const QList<DaySpan> added = newMonths(context, numbers);
    auto months = ::quarterMonths(context, quarter);
    planNew(added);
    return months;
}

QList<DaySpan> UsualWeekPlanner::newMonths(ModelContext& context, const QList<YearMonth>& months) const
{
    QList<DaySpan> added;
    if (!m_counting.usualWeek().plansNewMonths)
        return added;
    for (const YearMonth& month : months) {
        const DaySpan span = daysOfMonth(month);
        if (span.last >= m_clock.today() && storedMonth(context, span.first) == nullptr)
            added.append(span);
    }
    return added;
}

void UsualWeekPlanner::planNew(const QList<DaySpan>& months)
{
    try {
        QList<QDate> days;
        for (const DaySpan& month : months)
            days += daysIn(month);
        mark(days);
    } catch (const StoreError& error) {
        qCWarning(logUsualWeek, "A new month cannot be planned: %s", error.what());
    }
}

QList<QDate> UsualWeekPlanner::daysIn(DaySpan span) const
{
    const QDate today = m_clock.today();
    const DaySpan toCome{std::max(span.first, today), span.last};
    const CountedDays days = countedDays(m_marker.context(), toCome, m_counting.counting(), false);
    return daysToPlan(days, m_counting.usualWeek().weekdays, today);
}

void UsualWeekPlanner::mark(const QList<QDate>& days)
{
    QList<DayMark> marks;
    for (const QDate date : days)
        marks.append({date, DayState::WILL_BE_IN_OFFICE});
    if (!marks.isEmpty())
        m_marker.mark(marks, ChangedBy::Pattern);
}
