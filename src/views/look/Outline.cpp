// SPDX-License-Identifier: GPL-3.0-or-later
#include "Outline.h"

#include "Theme.h"

#include <QPainter>
#include <QWidget>

void drawOutline(QPainter& painter, const QRectF& area, qreal radius, const Theme& theme)
{
    if (theme.outline.alpha() == 0)
        return;
    painter.save();
    painter.setPen(theme.outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    painter.restore();
}

void drawDayOffOutline(QPainter& painter, const QRectF& face, qreal radius, const QColor& tint, const Theme& theme)
{
    const bool isOutlined = theme.outline.alpha() > 0;
    const qreal inset = isOutlined ? 2.5 : 1.5;
    QColor color = readableTextOn(tint);
    color.setAlphaF(isOutlined ? 1.0F : 0.75F);
    painter.save();
    painter.setPen(QPen(color, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(face.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter.restore();
}

void drawField(QWidget& field)
{
    constexpr qreal radius = 7.0;
    const Theme& theme = themeFor(field.palette());
    QPainter painter(&field);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(field.hasFocus() ? QPen(theme.accent, 2.0) : QPen(theme.controlBorder, 1.0));
    painter.setBrush(theme.field);
    const qreal inset = painter.pen().widthF() / 2;
    painter.drawRoundedRect(QRectF(field.rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}
