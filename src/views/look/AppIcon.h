// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

/// The icon of the program, from its own resources in 16, 32 and 64 pixels.
[[nodiscard]] QIcon appIcon();
