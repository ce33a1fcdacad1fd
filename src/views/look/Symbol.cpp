// SPDX-License-Identifier: GPL-3.0-or-later
#include "Symbol.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <array>
#include <utility>

namespace {

// Symbols are strokes on a 16 by 16 grid.
constexpr qreal gridSize = 16.0;
constexpr qreal strokeWidth = 1.5;

QPainterPath line(const QPolygonF& points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

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

QPainterPath circled(QPainterPath path)
{
    path.addEllipse(QRectF(1.2, 1.2, 13.6, 13.6));
    return path;
}

// A wheel with teeth.
QPainterPath cog(QPointF centre, qreal size, int teeth)
{
    // The outline of a tooth: how far along the way to the next one, and how far out.
    constexpr std::array<std::pair<qreal, qreal>, 4> corners{{{0.18, 0.72}, {0.32, 1.0}, {0.68, 1.0}, {0.82, 0.72}}};
    QPolygonF outline;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        for (const auto& [along, outwards] : corners)
            outline += QLineF::fromPolar(outwards * size, 360.0 * (tooth + along) / teeth).translated(centre).p2();
    }
    QPainterPath path = line(outline);
    path.closeSubpath();
    return path;
}

QPainterPath gear()
{
    constexpr QPointF centre(8.0, 8.0);
    QPainterPath path = cog(centre, 6.9, 8);
    path.addEllipse(centre, 2.2, 2.2);
    return path;
}

QPainterPath documentWithGear()
{
    QPainterPath path = line({{6.0, 14.3}, {2.6, 14.3}, {2.6, 1.5}, {8.4, 1.5}, {12.2, 5.3}, {12.2, 5.8}});
    path.addPath(line({{8.4, 1.5}, {8.4, 5.3}, {12.2, 5.3}}));
    path.addPath(cog({11.3, 11.3}, 4.0, 6));
    return path;
}

QPainterPath questionMark()
{
    QPainterPath path(QPointF(5.9, 6.3));
    path.cubicTo({6.0, 3.2}, {10.2, 3.4}, {10.1, 6.2});
    path.cubicTo({10.0, 7.8}, {8.0, 7.9}, {8.0, 9.5});
    path.addEllipse(QPointF(8.0, 12.0), 0.2, 0.2);
    return path;
}

QPainterPath pencil()
{
    QPainterPath path = line({{2.6, 13.4}, {3.4, 10.2}, {10.8, 2.8}, {13.2, 5.2}, {5.8, 12.6}, {2.6, 13.4}});
    path.addPath(line({{9.0, 4.6}, {11.4, 7.0}}));
    return path;
}

QPainterPath calendar()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(2.0, 3.2, 12.0, 10.8), 2.0, 2.0);
    path.addPath(line({{2.0, 6.8}, {14.0, 6.8}}));
    path.addPath(line({{5.2, 1.6}, {5.2, 4.4}}));
    path.addPath(line({{10.8, 1.6}, {10.8, 4.4}}));
    return path;
}

QPainterPath arrowClockwise()
{
    constexpr QRectF circle(2.7, 2.7, 10.6, 10.6);
    QPainterPath path;
    path.arcMoveTo(circle, 30.0);
    path.arcTo(circle, 30.0, 300.0);
    path.addPath(line({{12.6, 1.8}, {12.6, 5.4}, {9.0, 5.4}}));
    return path;
}

// An arrow pointer with rays at its tip.
QPainterPath click()
{
    QPainterPath path = line({{6.4, 6.4}, {14.4, 9.4}, {10.9, 10.9}, {9.4, 14.4}, {6.4, 6.4}});
    path.addPath(line({{5.6, 1.4}, {5.6, 3.2}}));
    path.addPath(line({{1.4, 5.6}, {3.2, 5.6}}));
    path.addPath(line({{2.5, 2.5}, {3.7, 3.7}}));
    return path;
}

QPainterPath rightClick()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(3.4, 1.4, 9.2, 13.2), 4.6, 4.6);
    path.addPath(line({{3.4, 6.6}, {12.6, 6.6}}));
    path.addPath(line({{8.0, 1.4}, {8.0, 6.6}}));
    path.addPath(line({{9.9, 4.4}, {10.9, 4.4}}));
    return path;
}

QPainterPath keyboard()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(1.2, 3.6, 13.6, 8.8), 1.8, 1.8);
    for (const qreal key : {4.0, 6.7, 9.3, 12.0})
        path.addEllipse(QPointF(key, 6.5), 0.1, 0.1);
    path.addPath(line({{5.2, 9.6}, {10.8, 9.6}}));
    return path;
}

QPainterPath menu()
{
    QPainterPath path;
    for (const qreal y : {4.0, 8.0, 12.0})
        path.addPath(line({{2.4, y}, {13.6, y}}));
    return path;
}

QPainterPath target()
{
    constexpr QPointF centre(8.0, 8.0);
    QPainterPath path;
    for (const qreal radius : {6.6, 3.5, 0.35})
        path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath drawer()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(1.6, 2.4, 12.8, 4.2), 1.2, 1.2);
    path.addPath(line({{2.8, 6.6}, {2.8, 13.6}, {13.2, 13.6}, {13.2, 6.6}}));
    path.addPath(line({{6.4, 9.4}, {9.6, 9.4}}));
    return path;
}

// Four strokes and a fifth across them.
QPainterPath tally()
{
    QPainterPath path;
    for (const qreal x : {3.2, 6.4, 9.6, 12.8})
        path.addPath(line({{x, 2.8}, {x, 13.2}}));
    path.addPath(line({{1.4, 11.2}, {14.6, 4.8}}));
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
    case Symbol::DocumentGear:
        return documentWithGear();
    case Symbol::Gear:
        return gear();
    case Symbol::Question:
        return circled(questionMark());
    case Symbol::Plus:
        return circled(line({{8.0, 4.8}, {8.0, 11.2}, {8.0, 8.0}, {4.8, 8.0}, {11.2, 8.0}}));
    case Symbol::Cross:
        return circled(line({{5.8, 5.8}, {10.2, 10.2}, {8.0, 8.0}, {10.2, 5.8}, {5.8, 10.2}}));
    case Symbol::Check:
        return circled(line({{5.0, 8.2}, {7.2, 10.4}, {11.0, 5.8}}));
    case Symbol::Tick:
        return line({{3.0, 8.6}, {6.4, 12.0}, {13.0, 4.6}});
    case Symbol::Circle:
        return circled({});
    case Symbol::Pencil:
        return pencil();
    case Symbol::Calendar:
        return calendar();
    case Symbol::ArrowClockwise:
        return arrowClockwise();
    case Symbol::Click:
        return click();
    case Symbol::RightClick:
        return rightClick();
    case Symbol::Keyboard:
        return keyboard();
    case Symbol::Menu:
        return menu();
    case Symbol::Target:
        return target();
    case Symbol::Drawer:
        return drawer();
    case Symbol::Tally:
        return tally();
    }
    Q_UNREACHABLE();
}

} // namespace

void drawSymbol(QPainter& painter, const QRectF& area, Symbol symbol, const QColor& color)
{
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(area.width() / gridSize, area.height() / gridSize);
    painter.setPen(QPen(color, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(strokesOf(symbol));
    painter.restore();
}
