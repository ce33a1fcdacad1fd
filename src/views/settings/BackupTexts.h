// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDateTime;

namespace backup_texts {

/// When a backup was made, such as "21 November 2026, 18:04".
[[nodiscard]] QString time(const QDateTime& made);
/// Such as "12 days".
[[nodiscard]] QString days(qsizetype count);
/// Such as "12 marked days" and "3 months".
[[nodiscard]] QString markedDays(qsizetype count);
[[nodiscard]] QString months(qsizetype count);
/// How many days differ from what a backup holds.
[[nodiscard]] QString difference(qsizetype days);
/// What came of restoring days.
[[nodiscard]] QString restored(qsizetype days);

} // namespace backup_texts
