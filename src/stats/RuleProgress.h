// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"
#include "Counting.h"
#include "DaySpan.h"
#include "DayState.h"

#include <QDate>

#include <functional>
#include <optional>
#include <span>
#include <vector>

/// The span of a rule to which a date belongs, not yet cut by the rule's validity. Weeks begin on `firstDayOfWeek`.
[[nodiscard]] DaySpan spanOf(const AttendanceRule& rule, QDate date, Qt::DayOfWeek firstDayOfWeek);

/// Days in a row, each counted once, for several rules to read. Days of months that are not there are unknown.
class CountedDays {
public:
    /// Returns the state of a day; unknown if it is not known.
    using StateOn = std::function<DayState(QDate)>;

    CountedDays(DaySpan span, const StateOn& stateOn, const Counting& counting, bool vacationDaysCountAsInOffice);

    struct Entry {
        CountedDay counted;
        DayState state = DayState::UNKNOWN;
        /// Whether the weekday is worked, days off included.
        bool isScheduled = false;
    };

    [[nodiscard]] DaySpan span() const { return m_span; }
    /// The days of a part of the span, in order. Any other days stop the program.
    [[nodiscard]] std::span<const Entry> in(DaySpan span) const;
    /// `date` is in the span.
    [[nodiscard]] const CountedDay& on(QDate date) const;

private:
    DaySpan m_span;
    std::vector<Entry> m_days;
};

/// How far a rule is met in one of its spans.
struct RuleProgress {
    enum class Verdict {
        /// At least: enough days. At most: not too many so far.
        Kept,
        /// At least: enough with the planned days.
        KeptWithPlanned,
        /// At least: enough workdays are left.
        Open,
        /// At least: not even all workdays that are left are enough. At most: too many.
        Broken
    };

    /// Cut by the days on which the rule holds.
    DaySpan span;
    /// The days that are needed, or allowed.
    qint64 wanted = 0;
    qint64 counted = 0;
    /// Planned days from today on; 0 for a rule about days out of office.
    qint64 planned = 0;
    /// Workdays from today on that are unknown or planned.
    qint64 workdaysLeft = 0;
    /// The days that a broken rule lacks, or has too many; otherwise 0.
    qint64 missedBy = 0;
    Verdict verdict = Verdict::Open;
    /// Of the whole span, among the weekdays of the rule.
    qint64 workdays = 0;

    /// At least: what is still needed, without the planned days. At most: what is still allowed, negative if too many.
    [[nodiscard]] qint64 remaining() const { return wanted - counted; }
    /// Whether the rule asks for nothing, because its span has no workdays.
    [[nodiscard]] bool hasNoWorkdays() const { return wanted == 0 && workdays == 0 && missedBy == 0; }

    bool operator==(const RuleProgress&) const = default;
};

/// Works out what follows from the other figures: `missedBy` and `verdict`. Of the days that are still to come, so many
/// can be among the counted ones.
void conclude(RuleProgress& progress, AttendanceRule::Bound bound, qint64 possible);

/// The progress in the span to which `reference` belongs; nothing if the rule does not hold in it. `days` includes that
/// span. Only days from `today` on can still change.
///
/// A rule needs the least number of days that reaches its amount, and allows the greatest that does not exceed it. With
/// W workdays in the span: amount * W / 5 days for an average, amount * W / 100 for per cent. A number of days does not
/// depend on leave; if the rule holds only in a part of the span, it is reduced to that part of the scheduled weekdays.
/// Days in the office count on any day, workday or not, as they do in the trackers.
[[nodiscard]] std::optional<RuleProgress> ruleProgress(const AttendanceRule& rule, const CountedDays& days,
                                                       QDate reference, QDate today, Qt::DayOfWeek firstDayOfWeek);

/// In how many spans a rule was kept.
struct SpansKept {
    qint64 kept = 0;
    qint64 spans = 0;

    bool operator==(const SpansKept&) const = default;
};

/// The spans that end in a period and are over, such as the weeks of a month that is shown after its end. Spans in
/// which the rule holds on no day are left out. `days` includes daysOfSpansKept().
[[nodiscard]] SpansKept spansKept(const AttendanceRule& rule, const CountedDays& days, DaySpan period, QDate today,
                                  Qt::DayOfWeek firstDayOfWeek);

/// From the first day of the first span that ends in a period or later, to the end of the period.
[[nodiscard]] DaySpan daysOfSpansKept(const AttendanceRule& rule, DaySpan period, Qt::DayOfWeek firstDayOfWeek);
