// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Symbol.h"

#include <QString>

#include <optional>

class QFontMetrics;
class QPainter;
class QRect;
class QSize;

/// A text, with a symbol before it or without, as buttons and tabs show it.
struct SymbolLabel {
    QString text;
    std::optional<Symbol> symbol;
    int symbolSize = 0;

    [[nodiscard]] QSize size(const QFontMetrics& metrics) const;
    /// Draws the label in the middle of an area, in the font and colour of the painter.
    void paint(QPainter& painter, const QRect& area, Qt::LayoutDirection direction) const;

private:
    /// The width of the symbol and its distance from the text.
    [[nodiscard]] int symbolRoom() const;
};
