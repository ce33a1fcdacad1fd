// SPDX-License-Identifier: GPL-3.0-or-later
#include "FocusVisible.h"

#include "Theme.h"

#include <QPainter>
#include <QWidget>

void FocusVisible::drawRing(QPainter& painter, const QWidget& widget, const QRectF& area, qreal radius) const
{
    if (!widget.hasFocus() || !m_visible)
        return;
    painter.setPen(QPen(themeFor(widget.palette()).accent, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area, radius, radius);
}
