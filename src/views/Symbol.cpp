// SPDX-License-Identifier: GPL-3.0-or-later
#include "Symbol.h"

#include <QPainter>
#include <QPolygonF>

namespace {

// Strokes on a grid of 16 by 16.
constexpr qreal gridSize = 16.0;
constexpr qreal strokeWidth = 1.6;

QPolygonF strokesOf(Symbol symbol)
{
    switch (symbol) {
    case Symbol::LessThan:
        return QPolygonF({{10.0, 3.5}, {5.5, 8.0}, {10.0, 12.5}});
    case Symbol::GreaterThan:
        return QPolygonF({{6.0, 3.5}, {10.5, 8.0}, {6.0, 12.5}});
    }
    Q_UNREACHABLE();
}

} // namespace

void drawSymbol(QPainter& painter, const QRectF& place, Symbol symbol, const QColor& color)
{
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / gridSize, place.height() / gridSize);
    painter.setPen(QPen(color, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(strokesOf(symbol));
    painter.restore();
}
