// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RuleProgress.h"

class ModelContext;

/// Counts the days of a span by the states that are stored. Months that the store does not hold are not created. Throws
/// a StoreError if the store cannot be read.
[[nodiscard]] CountedDays countedDays(ModelContext& context, DaySpan span, const Counting& counting,
                                      bool vacationDaysCountAsInOffice);
