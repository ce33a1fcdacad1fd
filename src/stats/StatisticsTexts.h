// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"

struct AttendanceStatistics;

/// The period that a progress tracker names.
enum class PeriodWord { Month, Quarter };

/// "12 days in the office this **quarter**"
[[nodiscard]] MarkedText headlineText(qint64 inOffice, PeriodWord period);

/// "**3 more days** to reach goal **Team days**", or the goal's value if it has no description ("2.50/5"). A goal that
/// is reached needs 0 days. Empty without a target goal.
[[nodiscard]] MarkedText goalText(const AttendanceStatistics& statistics);

/// "You've reached 2.33 average days in office per week"
[[nodiscard]] QString averageText(double average);

/// "64 workdays"
[[nodiscard]] QString workdaysText(qint64 workdays);

/// "2.50": two decimals, as every average of days per week is shown, with the decimal separator of the language.
[[nodiscard]] QString twoDecimals(double value);

/// The name of a goal that has no description: its value, such as "2.50/5".
[[nodiscard]] QString goalValueText(double value);
