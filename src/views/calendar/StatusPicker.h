// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <functional>

class QMenu;
class QWidget;

/// A menu of all states, each behind the key that reaches it in one click. The menu deletes itself when it closes.
[[nodiscard]] QMenu* makeStatusPicker(QWidget* parent, const std::function<void(DayState)>& chosen);
