// SPDX-License-Identifier: GPL-3.0-or-later
#include "Symbol.h"

#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

// The resources of a static library are not registered by themselves, and the macro works in no namespace.
static void registerIcons()
{
    Q_INIT_RESOURCE(icons);
}

void drawSymbol(QPainter& painter, const QRectF& place, const QString& name, const QColor& color)
{
    registerIcons();
    const qreal scale = painter.device()->devicePixelRatioF();
    QPixmap pixmap((place.size() * scale).toSize());
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter tinting(&pixmap);
    QSvgRenderer(":/icons/"_L1 + name + ".svg"_L1).render(&tinting, QRectF(QPointF(), place.size()));
    tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tinting.fillRect(pixmap.rect(), color);
    tinting.end();
    painter.drawPixmap(place.topLeft(), pixmap);
}
