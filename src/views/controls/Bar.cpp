// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bar.h"

#include "Theme.h"

#include <QPainter>
#include <QStyle>

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
    QRect line = rect();
    switch (m_border) {
    case Qt::TopEdge:
        line.setHeight(1);
        break;
    case Qt::BottomEdge:
        line.setTop(line.bottom());
        break;
    case Qt::LeftEdge:
        line.setWidth(1);
        break;
    case Qt::RightEdge:
        line.setLeft(line.right());
        break;
    }
    painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), line), theme.border);
}
