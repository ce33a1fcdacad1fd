// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDate;
class Weekdays;
enum class DayOffSource;

namespace counting_texts {

/// Such as "1 March 2026".
[[nodiscard]] QString date(QDate date);
/// A date without its year, such as "Thu 1 January".
[[nodiscard]] QString dayAndMonth(QDate date);
/// Such as "Mon–Thu" and "Mon, Wed–Fri", in the order of the locale.
[[nodiscard]] QString weekdays(Weekdays weekdays);
/// Such as "Public holiday".
[[nodiscard]] QString source(DayOffSource source);
/// Such as "27 days off".
[[nodiscard]] QString daysOff(qsizetype count);
/// What was done, such as "27 days off were added."; empty if nothing was.
[[nodiscard]] QString changed(qsizetype added, qsizetype takenOut);
/// What to say if a change could not be stored.
[[nodiscard]] QString notStored();

} // namespace counting_texts
