// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A name of the rule file in the person's language. As it is if it is not among the texts to translate.
[[nodiscard]] QString holidayText(const QString& english);
/// Whether a name is among the texts to translate.
[[nodiscard]] bool hasHolidayText(const QString& english);
/// What a day off is called that is given in place of a holiday on a weekend.
[[nodiscard]] QString substituteText(const QString& holiday);
