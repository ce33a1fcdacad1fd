// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainTree.h"

#include "Fonts.h"
#include "Theme.h"
#include "ThinScrollBarStyle.h"

#include <QFocusEvent>
#include <QPainter>

PlainTree::PlainTree(QWidget* parent)
    : QTreeView(parent)
{
    setFont(fonts::body(font()));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ThinScrollBarStyle::applyTo(*this);
}

void PlainTree::drawRing(QPainter& painter, const QStyleOptionViewItem& row)
{
    constexpr qreal ringRadius = 6.0;
    if (!row.state.testFlags(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(themeFor(row.palette).accent, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(row.rect).adjusted(1, 1, -1, -1), ringRadius, ringRadius);
}

// The style shows where the focus is only once the keyboard is used.

void PlainTree::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        window()->setAttribute(Qt::WA_KeyboardFocusChange);
    QTreeView::focusInEvent(event);
}

void PlainTree::keyPressEvent(QKeyEvent* event)
{
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    QTreeView::keyPressEvent(event);
}
