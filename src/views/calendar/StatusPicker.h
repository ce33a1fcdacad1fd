// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <functional>

class QMenu;
class QWidget;

/// A menu of all states, each with the modifier key that sets it in one click. It deletes itself when it closes.
[[nodiscard]] QMenu* makeStatusPicker(QWidget* parent, const std::function<void(DayState)>& onChosen);
