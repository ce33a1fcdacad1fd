// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QColor;
class QPainter;
class QRectF;

/// The symbols beside words. They are so simple that strokes do, and no library for pictures has to be loaded while the
/// program starts.
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
    Click,
    RightClick,
};

/// Draws a symbol in a square place.
void drawSymbol(QPainter& painter, const QRectF& place, Symbol symbol, const QColor& color);
