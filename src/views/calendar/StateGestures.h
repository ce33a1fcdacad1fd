// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <Qt>

#include <optional>

class QKeyEvent;

/// The modifier keys of a click on a day, in order of priority: if several are held, the first counts.
enum class ClickModifier { None, Command, Option, Shift };

/// The modifier that counts, where Ctrl is Command and Alt is Option.
[[nodiscard]] ClickModifier clickModifier(Qt::KeyboardModifiers held);

/// The modifier that sets the state in one click.
[[nodiscard]] ClickModifier modifierFor(DayState state);

/// The name of the key, such as "Ctrl"; empty for none.
[[nodiscard]] QString keyName(ClickModifier modifier);

/// The number key that sets the state of the focused day. Unlike a modifier, no window manager takes it.
[[nodiscard]] Qt::Key keyFor(DayState state);

/// The state whose number key was pressed.
[[nodiscard]] std::optional<DayState> stateForKey(const QKeyEvent& event);
