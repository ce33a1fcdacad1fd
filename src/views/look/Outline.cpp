// SPDX-License-Identifier: GPL-3.0-or-later
#include "Outline.h"

#include "Theme.h"

#include <QPainter>

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
