// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MarkedText.h"
#include "Plan.h"

/// What a plan still needs, may add or has too much: "**4** of the **9** free workdays left: about **2** a week",
/// "The planned days are enough", "**2** more days allowed beside the plan". Empty if there is nothing to plan.
[[nodiscard]] MarkedText planText(const AttendanceRule& rule, const RuleProgress& progress, const PlanPace& pace,
                                  QDate today);
