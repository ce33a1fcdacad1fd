// SPDX-License-Identifier: GPL-3.0-or-later
#include "AttendanceStatus.h"

#include "AppSettings.h"
#include "AttendanceStatistics.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Month.h"
#include "Period.h"
#include "Rounding.h"
#include "RuleTexts.h"
#include "StatisticsTexts.h"
#include "StoredDays.h"
#include "StoredMonths.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr int statusVersion = 1;

QString isoDate(QDate date)
{
    return date.toString(Qt::ISODate);
}

QLatin1StringView nameOf(AttendanceRule::Span span)
{
    constexpr std::array spanNames{"WEEK"_L1, "TWO_WEEKS"_L1, "MONTH"_L1, "QUARTER"_L1, "YEAR"_L1, "LAST_WEEKS"_L1};
    return spanNames.at(static_cast<std::size_t>(span) - 1);
}

QLatin1StringView nameOf(AttendanceRule::Bound bound)
{
    return bound == AttendanceRule::Bound::AtLeast ? "AT_LEAST"_L1 : "AT_MOST"_L1;
}

QLatin1StringView nameOf(RuleProgress::Verdict verdict)
{
    constexpr std::array verdictNames{"KEPT"_L1, "KEPT_WITH_PLANNED"_L1, "OPEN"_L1, "BROKEN"_L1};
    return verdictNames.at(static_cast<std::size_t>(verdict));
}

QVariantMap goalStatus(const ValuedGoal& goal, const AttendanceStatistics& statistics)
{
    const QString description = goal.goal->desc;
    const qint64 needed = neededDays(goal.value, statistics.workdays);
    return {{u"name"_s, description.isEmpty() ? goalValueText(goal.value) : description},
            {u"daysPerWeek"_s, goal.value},
            {u"needed"_s, needed},
            {u"remaining"_s, std::max<qint64>(needed - statistics.inOffice, 0)}};
}

QVariantMap periodStatus(const StatusSource& source, int year, std::span<const int> numbers, PeriodWord word)
{
    QList<std::shared_ptr<Month>> months;
    QList<const Month*> pointers;
    for (const int number : numbers) {
        const auto stored = storedMonth(source.marker.context(), QDate(year, number, 1));
        months.append(stored ? stored : std::make_shared<Month>(year, number));
        pointers.append(months.last().get());
    }
    const AttendanceStatistics statistics =
        attendanceStatistics(pointers, source.settings.daysPerWeekGoals, source.settings.vacationDaysCountAsInOffice,
                             true, source.counting.counting());
    QVariantList goals;
    for (const ValuedGoal& goal : statistics.validGoals)
        goals.append(goalStatus(goal, statistics));
    const QDate lastMonth(year, numbers.back(), 1);
    return {{u"from"_s, isoDate({year, numbers.front(), 1})},
            {u"to"_s, isoDate({year, numbers.back(), lastMonth.daysInMonth()})},
            {u"inOffice"_s, statistics.inOffice},
            {u"planned"_s, statistics.planned},
            {u"workdays"_s, statistics.workdays},
            {u"average"_s, roundedToTwoDecimals(shownAverage(statistics))},
            {u"remaining"_s, std::max<qint64>(statistics.remainingDays, 0)},
            {u"goals"_s, goals},
            {u"text"_s, toPlainText(headlineText(statistics.inOffice, word))},
            {u"goalText"_s, toPlainText(goalText(statistics))}};
}

QVariantMap ruleStatus(const AttendanceRule& rule, const RuleProgress& progress, QDate today)
{
    return {{u"name"_s, rule.name},
            {u"span"_s, nameOf(rule.span)},
            {u"from"_s, isoDate(progress.span.first)},
            {u"to"_s, isoDate(progress.span.last)},
            {u"bound"_s, nameOf(rule.bound)},
            {u"wanted"_s, progress.wanted},
            {u"counted"_s, progress.counted},
            {u"planned"_s, progress.planned},
            {u"remaining"_s, std::max<qint64>(progress.remaining(), 0)},
            {u"workdaysLeft"_s, progress.workdaysLeft},
            {u"verdict"_s, nameOf(progress.verdict)},
            {u"text"_s, ruleCountText(rule, progress)},
            {u"outlookText"_s, ruleOutlookText(rule, progress, today)}};
}

QVariantList rulesStatus(const StatusSource& source, QDate today, Qt::DayOfWeek weekStart)
{
    const QList<AttendanceRule> rules = source.counting.rules();
    DaySpan needed{today, today};
    for (const AttendanceRule& rule : rules) {
        const DaySpan days = spanOf(rule, today, weekStart);
        needed = {std::min(needed.first, days.first), std::max(needed.last, days.last)};
    }
    QVariantList list;
    if (rules.isEmpty())
        return list;
    const CountedDays days = countedDays(source.marker.context(), needed, source.counting.counting(),
                                         source.settings.vacationDaysCountAsInOffice);
    for (const AttendanceRule& rule : rules) {
        if (const auto progress = ruleProgress(rule, days, today, today, weekStart))
            list.append(ruleStatus(rule, *progress, today));
    }
    return list;
}

} // namespace

QVariantMap attendanceStatus(const StatusSource& source, Qt::DayOfWeek weekStart)
{
    const QDate today = source.clock.today();
    const auto month = storedMonth(source.marker.context(), today);
    const auto stored = month ? source.marker.markOn(*month, today) : std::nullopt;
    const DayMark mark = stored.value_or(DayMark{today});
    const int number = today.month();
    const YearQuarter quarter = YearMonth{today.year(), number}.quarter();
    return {{u"version"_s, statusVersion},
            {u"date"_s, isoDate(today)},
            {u"state"_s, rawValue(mark.state)},
            {u"text"_s, source.marker.absences().describe(mark.state, mark.absenceKind)},
            {u"isWorkday"_s, source.counting.counting().value().isWorkday(today)},
            {u"month"_s, periodStatus(source, today.year(), {&number, 1}, PeriodWord::Month)},
            {u"quarter"_s, periodStatus(source, quarter.year, quarter.months(), PeriodWord::Quarter)},
            {u"rules"_s, rulesStatus(source, today, weekStart)}};
}
