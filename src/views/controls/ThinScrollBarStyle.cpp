// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThinScrollBarStyle.h"

#include "Theme.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionSlider>

void ThinScrollBarStyle::applyTo(QAbstractScrollArea& area)
{
    auto* style = new ThinScrollBarStyle;
    style->setParent(&area);
    for (QScrollBar* bar : {area.horizontalScrollBar(), area.verticalScrollBar()}) {
        bar->setStyle(style);
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
}

int ThinScrollBarStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    constexpr int extent = 10;
    constexpr int shortestHandle = 32;
    switch (metric) {
    case PM_ScrollBarExtent:
    case PM_ScrollView_ScrollBarOverlap:
        return extent;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void ThinScrollBarStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                            QPainter* painter, const QWidget* widget) const
{
    if (control != CC_ScrollBar)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    constexpr qreal margin = 2.0;
    const auto marginsRemoved = QMarginsF(margin, margin, margin, margin);
    const QRectF handle =
        QRectF(subControlRect(control, option, SC_ScrollBarSlider, widget)).marginsRemoved(marginsRemoved);
    const Theme& theme = themeFor(option->palette);
    const bool isUsed = (option->state & (State_MouseOver | State_Sunken)) != 0;
    const qreal radius = qMin(handle.width(), handle.height()) / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isUsed ? theme.dimText : theme.controlBorder);
    painter->drawRoundedRect(handle, radius, radius);
    painter->restore();
}
