// SPDX-License-Identifier: GPL-3.0-or-later
#include "Symbol.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace {

// Strokes on a grid of 16 by 16.
constexpr qreal gridSize = 16.0;
constexpr qreal strokeWidth = 1.6;

QPainterPath line(const QPolygonF& points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

// Waves that spread from a point.
QPainterPath waves()
{
    constexpr QPointF source(8.0, 12.4);
    QPainterPath path;
    path.addEllipse(source, 0.35, 0.35);
    for (const qreal radius : {3.4, 6.4, 9.4}) {
        const QRectF circle(source - QPointF(radius, radius), source + QPointF(radius, radius));
        path.arcMoveTo(circle, 45.0);
        path.arcTo(circle, 45.0, 90.0);
    }
    return path;
}

QPainterPath struckOut(QPainterPath path)
{
    path.addPath(line({{2.5, 1.8}, {13.5, 13.8}}));
    return path;
}

QPainterPath strokesOf(Symbol symbol)
{
    switch (symbol) {
    case Symbol::LessThan:
        return line({{10.0, 3.5}, {5.5, 8.0}, {10.0, 12.5}});
    case Symbol::GreaterThan:
        return line({{6.0, 3.5}, {10.5, 8.0}, {6.0, 12.5}});
    case Symbol::Wifi:
        return waves();
    case Symbol::WifiSlash:
        return struckOut(waves());
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
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(strokesOf(symbol));
    painter.restore();
}
