// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QColor;
class QPainter;
class QRectF;

/// The program's symbols. They are drawn as strokes, so that no image library has to be loaded at start-up.
enum class Symbol {
    LessThan,
    GreaterThan,
    Wifi,
    WifiSlash,
    DocumentGear,
    Gear,
    Question,
    Plus,
    Cross,
    Check,
    Tick,
    Circle,
    Pencil,
    Calendar,
    ArrowClockwise,
    Click,
    RightClick,
    Keyboard,
    Menu,
    Target,
    Drawer,
    Tally,
};

/// Draws a symbol in a square area.
void drawSymbol(QPainter& painter, const QRectF& area, Symbol symbol, const QColor& color);
