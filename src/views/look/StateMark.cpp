// SPDX-License-Identifier: GPL-3.0-or-later
#include "StateMark.h"

#include "Outline.h"
#include "Theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace {

constexpr qreal swatchRadius = 6.0;
constexpr qreal swatchMark = 0.4;

// In the unit square.
QPainterPath outlineOf(DayState state)
{
    QPainterPath path;
    switch (state) {
    case DayState::UNKNOWN:
        break;
    case DayState::IN_OFFICE:
        path.addEllipse(QRectF(0.0, 0.0, 1.0, 1.0));
        break;
    case DayState::OUT_OF_OFFICE:
        path.addRoundedRect(QRectF(-0.05, 0.35, 1.1, 0.3), 0.15, 0.15);
        break;
    case DayState::VACATION_DAY:
        path.addPolygon(QPolygonF({{0.5, 0.0}, {1.05, 0.95}, {-0.05, 0.95}}));
        path.closeSubpath();
        break;
    case DayState::WILL_BE_IN_OFFICE: // still an empty circle
        path.addEllipse(QRectF(-0.05, -0.05, 1.1, 1.1));
        path.addEllipse(QRectF(0.17, 0.17, 0.66, 0.66));
        break;
    }
    return path;
}

} // namespace

void drawStateMark(QPainter& painter, const QRectF& area, DayState state, const QColor& color)
{
    const QTransform toArea = QTransform::fromTranslate(area.x(), area.y()).scale(area.width(), area.height());
    painter.fillPath(toArea.map(outlineOf(state)), color);
}

void drawDaySwatch(QPainter& painter, const QRectF& area, const Theme& theme, const Day& day, bool isDayOff)
{
    const QColor color = dayColor(theme, day);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, swatchRadius, swatchRadius);
    drawOutline(painter, area, swatchRadius, theme);
    if (isDayOff)
        drawDayOffOutline(painter, area, swatchRadius, color, theme);
    QRectF mark({}, QSizeF(1, 1) * (swatchMark * area.height()));
    mark.moveCenter(area.center());
    drawStateMark(painter, mark, day.state, readableTextOn(color));
    painter.restore();
}
