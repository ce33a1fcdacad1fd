// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceStatistics.h"
#include "RecordContents.h"

/// The figures of a part of a record's period.
struct RecordTotal {
    DaySpan span;
    /// As the progress trackers count.
    AttendanceStatistics statistics = {};
    /// Days that count as out of office.
    qint64 outOfOffice = 0;
    /// Whatever they count as.
    qint64 vacationDays = 0;
};

/// The figures of each month, of each quarter and year after its last month if the period has all of it, and last those
/// of the whole period.
[[nodiscard]] QList<RecordTotal> recordTotals(const RecordContents& contents);
/// The figures of one of the months.
[[nodiscard]] RecordTotal totalOfMonth(const RecordContents& contents, const std::shared_ptr<const Month>& month);

/// How far a rule was met in the spans that the period touches, each as a whole.
struct RecordedRule {
    AttendanceRule rule;
    /// Those that end in the period and are over.
    SpansKept kept;
    QList<RuleProgress> spans;
};

/// Rules that hold on no day of the period are left out.
[[nodiscard]] QList<RecordedRule> recordedRules(const RecordContents& contents);
