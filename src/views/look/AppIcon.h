// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

/// The icon of the program in pictures of its own, 16 to 48 pixels wide.
[[nodiscard]] QIcon appIcon();
