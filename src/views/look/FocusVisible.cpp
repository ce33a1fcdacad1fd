// SPDX-License-Identifier: GPL-3.0-or-later
#include "FocusVisible.h"

#include "Theme.h"

#include <QPainter>
#include <QWidget>

void FocusVisible::drawRing(QPainter& painter, const QWidget& widget, const QRectF& area, qreal radius) const
{
    drawRing(painter, widget, area, radius, themeFor(widget.palette()).accent);
}

void FocusVisible::drawRing(QPainter& painter, const QWidget& widget, const QRectF& area, qreal radius,
                            const QColor& color) const
{
    if (!widget.hasFocus() || !m_visible)
        return;
    painter.setPen(QPen(color, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area, radius, radius);
}
