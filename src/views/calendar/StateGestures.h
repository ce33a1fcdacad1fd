// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <Qt>

/// The keys that give a click on a day another meaning, in order of priority: of several that are held the first
/// counts.
enum class ClickModifier { None, Command, Option, Shift };

/// What was held during a click, as this platform's keys: Ctrl, Alt and Shift.
[[nodiscard]] ClickModifier clickModifier(Qt::KeyboardModifiers held);

/// The key that makes one click reach the state.
[[nodiscard]] ClickModifier modifierReaching(DayState state);

/// What is printed on the key, such as "Ctrl"; empty for none.
[[nodiscard]] QString keyName(ClickModifier modifier);
