// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bar.h"

#include "Theme.h"

#include <QPainter>

Bar::Bar(Qt::Edge border, QWidget* parent)
    : QWidget(parent)
    , m_border(border)
{
}

void Bar::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.fillRect(rect(), theme.card);
    painter.fillRect(0, m_border == Qt::TopEdge ? 0 : height() - 1, width(), 1, theme.border);
}
