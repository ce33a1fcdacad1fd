// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordContents.h"

#include <QString>

/// The words of a record, in the person's language.
namespace record_texts {

/// "November 2026", "Q4 2026", "2026", "1 March 2026 to 15 May 2026"
[[nodiscard]] QString period(DaySpan span);
/// "22 November 2026"
[[nodiscard]] QString date(QDate date);
/// "Office Days 2026-11", without what no name of a file may have.
[[nodiscard]] QString fileName(DaySpan span);
/// "Out of Office (Sick)"
[[nodiscard]] QString state(const DayRecord& day, const QList<AbsenceKind>& kinds);
/// The kind of a day out of office; empty if it has none.
[[nodiscard]] QString kind(const DayRecord& day, const QList<AbsenceKind>& kinds);
/// "Christmas Day", or "Day Off" if it has no name; empty if the day is none.
[[nodiscard]] QString dayOff(const DayRecord& day);
/// "By hand", "Office network Head Office"; empty if it is not known.
[[nodiscard]] QString setBy(const DayRecord& day);
/// When that was; not valid if it is not known.
[[nodiscard]] QDateTime setAt(const DayRecord& day);
/// "By hand, 20 Nov 2026, 09:12"
[[nodiscard]] QString change(const DayRecord& day);

/// How days count, a sentence each.
[[nodiscard]] QStringList howDaysCount(const RecordContents& contents);

} // namespace record_texts
