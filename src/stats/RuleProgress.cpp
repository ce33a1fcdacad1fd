// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleProgress.h"

#include <algorithm>

namespace {

// A Monday. Without an anchor, pairs of weeks begin in its week.
constexpr QDate defaultAnchor = QDate::fromJulianDay(2460311); // 2024-01-01

qint64 remainderOf(qint64 number, qint64 divisor)
{
    return (number % divisor + divisor) % divisor;
}

QDate weekStart(QDate date, Qt::DayOfWeek firstDayOfWeek)
{
    return date.addDays(-remainderOf(date.dayOfWeek() - firstDayOfWeek, 7));
}

DaySpan weeksFrom(QDate first, int weeks)
{
    return {first, first.addDays(7 * weeks - 1)};
}

DaySpan twoWeeksOf(QDate anchor, QDate date, Qt::DayOfWeek firstDayOfWeek)
{
    const qint64 days = weekStart(anchor, firstDayOfWeek).daysTo(date);
    return weeksFrom(date.addDays(-remainderOf(days, 14)), 2);
}

// Runs of as many months, of which one begins with `firstMonth`.
DaySpan monthsOf(QDate date, int firstMonth, int months)
{
    const QDate monthStart = date.addDays(1 - date.day());
    const QDate first = monthStart.addMonths(-static_cast<int>(remainderOf(date.month() - firstMonth, months)));
    return {first, first.addMonths(months).addDays(-1)};
}

DaySpan cutByValidity(DaySpan span, const AttendanceRule& rule)
{
    if (rule.from)
        span.first = std::max(span.first, *rule.from);
    if (rule.until)
        span.last = std::min(span.last, *rule.until);
    return span;
}

// Without arithmetic of dates, since a rule of a year visits 365 days.
template <class Function>
void forEachDay(const AttendanceRule& rule, const CountedDays& days, DaySpan span, Function function)
{
    int dayOfWeek = span.first.dayOfWeek();
    for (const CountedDays::Entry& day : days.in(span)) {
        if (rule.weekdays.contains(dayOfWeek))
            function(day);
        dayOfWeek = dayOfWeek % 7 + 1;
    }
}

bool isSubject(const AttendanceRule& rule, const CountedDay& day)
{
    if (rule.subject == AttendanceRule::Subject::InOffice)
        return day.isInOffice;
    return rule.absenceKind != AbsenceKind::none ? day.absenceKind == rule.absenceKind : day.isOutOfOffice;
}

bool isOpen(DayState state)
{
    return state == DayState::UNKNOWN || state == DayState::WILL_BE_IN_OFFICE;
}

struct Tally {
    qint64 workdays = 0;
    qint64 counted = 0;
    qint64 planned = 0;
    qint64 workdaysLeft = 0;
    /// Days that can still be among the counted ones: workdays that are left, and other planned days.
    qint64 possible = 0;
};

Tally tallyOf(const AttendanceRule& rule, const CountedDays& days, DaySpan span, QDate today)
{
    Tally tally;
    const DaySpan toCome{std::max(span.first, today), span.last};
    forEachDay(rule, days, span, [&](const CountedDays::Entry& day) {
        tally.workdays += day.counted.isWorkday;
        tally.counted += isSubject(rule, day.counted);
    });
    forEachDay(rule, days, toCome, [&](const CountedDays::Entry& day) {
        const bool isPlanned = day.counted.isPlanned && rule.subject == AttendanceRule::Subject::InOffice;
        const bool isLeft = day.counted.isWorkday && isOpen(day.state);
        tally.planned += isPlanned;
        tally.workdaysLeft += isLeft;
        tally.possible += isLeft || isPlanned;
    });
    return tally;
}

qint64 scheduledCount(const AttendanceRule& rule, const CountedDays& days, DaySpan span)
{
    qint64 count = 0;
    forEachDay(rule, days, span, [&](const CountedDays::Entry& day) { count += day.isScheduled; });
    return count;
}

qint64 wholeDays(AttendanceRule::Bound bound, qint64 numerator, qint64 denominator)
{
    const bool isRoundedUp = bound == AttendanceRule::Bound::AtLeast && numerator % denominator != 0;
    return numerator / denominator + (isRoundedUp ? 1 : 0);
}

qint64 wantedOf(const AttendanceRule& rule, const CountedDays& days, DaySpan whole, DaySpan span, qint64 workdays)
{
    constexpr qint64 hundredths = 100;
    switch (rule.unit) {
    case AttendanceRule::Unit::DaysPerWeek:
        return wholeDays(rule.bound, rule.amount * workdays, hundredths * 5);
    case AttendanceRule::Unit::PercentOfWorkdays:
        return wholeDays(rule.bound, rule.amount * workdays, hundredths * 100);
    case AttendanceRule::Unit::Days:
        break;
    }
    const qint64 scheduled = span == whole ? 0 : scheduledCount(rule, days, whole);
    if (scheduled == 0)
        return wholeDays(rule.bound, rule.amount, hundredths);
    return wholeDays(rule.bound, rule.amount * scheduledCount(rule, days, span), hundredths * scheduled);
}

RuleProgress::Verdict verdictOf(const RuleProgress& progress, AttendanceRule::Bound bound)
{
    using Verdict = RuleProgress::Verdict;
    if (progress.missedBy > 0)
        return Verdict::Broken;
    if (bound == AttendanceRule::Bound::AtMost || progress.remaining() <= 0)
        return Verdict::Kept;
    return progress.remaining() <= progress.planned ? Verdict::KeptWithPlanned : Verdict::Open;
}

} // namespace

DaySpan spanOf(const AttendanceRule& rule, QDate date, Qt::DayOfWeek firstDayOfWeek)
{
    switch (rule.span) {
    case AttendanceRule::Span::Week:
        return weeksFrom(weekStart(date, firstDayOfWeek), 1);
    case AttendanceRule::Span::TwoWeeks:
        return twoWeeksOf(rule.anchor.value_or(defaultAnchor), date, firstDayOfWeek);
    case AttendanceRule::Span::Month:
        return monthsOf(date, 1, 1);
    case AttendanceRule::Span::Quarter:
        return monthsOf(date, rule.firstMonth, 3);
    case AttendanceRule::Span::Year:
        return monthsOf(date, rule.firstMonth, 12);
    case AttendanceRule::Span::LastWeeks: {
        const QDate first = weekStart(date, firstDayOfWeek).addDays(-7 * (rule.weeks - 1));
        return weeksFrom(first, rule.weeks);
    }
    }
    return {date, date};
}

CountedDays::CountedDays(DaySpan span, const StateOn& stateOn, const Counting& counting,
                         bool vacationDaysCountAsInOffice)
    : m_span(span)
{
    if (span.isEmpty())
        return;
    m_days.reserve(static_cast<std::size_t>(span.first.daysTo(span.last) + 1));
    for (QDate date = span.first; date <= span.last; date = date.addDays(1)) {
        const DayState state = stateOn(date);
        m_days.push_back({counting.count(date, state, vacationDaysCountAsInOffice), state, counting.isScheduled(date)});
    }
}

std::span<const CountedDays::Entry> CountedDays::in(DaySpan span) const
{
    if (span.isEmpty())
        return {};
    if (span.first < m_span.first || m_span.last < span.last)
        qFatal("Days were not counted");
    return std::span(m_days).subspan(static_cast<std::size_t>(m_span.first.daysTo(span.first)),
                                     static_cast<std::size_t>(span.first.daysTo(span.last) + 1));
}

const CountedDay& CountedDays::on(QDate date) const
{
    return m_days.at(static_cast<std::size_t>(m_span.first.daysTo(date))).counted;
}

void conclude(RuleProgress& progress, AttendanceRule::Bound bound, qint64 possible)
{
    const bool isAtLeast = bound == AttendanceRule::Bound::AtLeast;
    progress.missedBy = std::max<qint64>(0, isAtLeast ? progress.remaining() - possible : -progress.remaining());
    progress.verdict = verdictOf(progress, bound);
}

std::optional<RuleProgress> ruleProgress(const AttendanceRule& rule, const CountedDays& days, QDate reference,
                                         QDate today, Qt::DayOfWeek firstDayOfWeek)
{
    const DaySpan whole = spanOf(rule, reference, firstDayOfWeek);
    const DaySpan span = cutByValidity(whole, rule);
    if (span.isEmpty())
        return {};
    const Tally tally = tallyOf(rule, days, span, today);
    RuleProgress progress{.span = span,
                          .wanted = wantedOf(rule, days, whole, span, tally.workdays),
                          .counted = tally.counted,
                          .planned = tally.planned,
                          .workdaysLeft = tally.workdaysLeft,
                          .workdays = tally.workdays};
    conclude(progress, rule.bound, tally.possible);
    return progress;
}

SpansKept spansKept(const AttendanceRule& rule, const CountedDays& days, DaySpan period, QDate today,
                    Qt::DayOfWeek firstDayOfWeek)
{
    SpansKept result;
    if (period.isEmpty())
        return result;
    QDate date = period.first;
    for (DaySpan span = spanOf(rule, date, firstDayOfWeek); span.last <= period.last;
         span = spanOf(rule, date, firstDayOfWeek)) {
        const auto progress = ruleProgress(rule, days, date, today, firstDayOfWeek);
        if (progress && progress->span.last < today) {
            ++result.spans;
            result.kept += progress->verdict == RuleProgress::Verdict::Kept;
        }
        date = span.last.addDays(1);
    }
    return result;
}

DaySpan daysOfSpansKept(const AttendanceRule& rule, DaySpan period, Qt::DayOfWeek firstDayOfWeek)
{
    return {spanOf(rule, period.first, firstDayOfWeek).first, period.last};
}
