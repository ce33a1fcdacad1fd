// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The name of a network as it can be shown, whatever bytes it is made of: what cannot be seen has a visible sign, and
/// no name changes the direction of the text around it. For the screen alone: two names may look the same.
[[nodiscard]] QString displayName(const QString& ssid);
