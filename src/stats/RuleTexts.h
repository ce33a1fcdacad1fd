// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RuleProgress.h"

/// "5 of 8 days", "5 of at most 8 days"
[[nodiscard]] QString ruleCountText(const AttendanceRule& rule, const RuleProgress& progress);

/// What is left, or the outcome: "3 more by 30 November, 6 workdays left", "Reached", "Reached with the planned days",
/// "Cannot be reached any more (2 short)", "Cannot be reached: only 2 workdays (1 short)"; "3 more allowed until 30
/// November", "2 too many"; once the span is over "Reached", "Missed by 2", "Kept". Where nothing counts: "No workdays
/// in this period".
[[nodiscard]] QString ruleOutlookText(const AttendanceRule& rule, const RuleProgress& progress, QDate today);

/// "Reached in 3 of 4 weeks"; empty if there are no spans.
[[nodiscard]] QString spansKeptText(const AttendanceRule& rule, const SpansKept& spans);

/// The rule in words, without its name: "At least 60 % of the workdays of each month". `kinds` are those that a person
/// can choose from.
[[nodiscard]] QString ruleSummary(const AttendanceRule& rule, const QList<AbsenceKind>& kinds);
