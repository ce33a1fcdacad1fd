// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMargins>
#include <QSize>

class QRect;
class QWidget;

/// What a window's contents may take of a screen. The rest is for its frame, and for the panels of a desktop that does
/// not say where they are.
[[nodiscard]] QSize roomForWindow(const QRect& screen, const QRect& available);

/// Gives a window its first size, and the least one that it needs, but neither of them larger than the screen.
void fitToScreen(QWidget& window, QSize wanted);

constexpr QMargins pageMargins(24, 20, 24, 20);

/// How wide something on a page may be, so that no window scrolls sideways.
[[nodiscard]] int widestContents();
