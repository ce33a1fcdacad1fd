// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlainTree.h"

#include "Accessibility.h"
#include "Fonts.h"
#include "Theme.h"
#include "ThinScrollBarStyle.h"

#include <QFocusEvent>
#include <QPainter>
#include <QScrollBar>

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
    QRect ring = row.rect;
    if (const auto* tree = qobject_cast<const QTreeView*>(row.widget)) {
        // The bar takes no room from the rows.
        const QScrollBar& bar = *tree->verticalScrollBar();
        ring.setWidth(ring.width() - (bar.isVisible() ? bar.width() : 0));
    }
    ring = QStyle::visualRect(row.direction, row.rect, ring);
    painter.drawRoundedRect(QRectF(ring).adjusted(1, 1, -1, -1), ringRadius, ringRadius);
}

// The style draws the border of a check box in a darker shade of the window.
QStyleOptionViewItem PlainTree::withVisibleBox(QStyleOptionViewItem row)
{
    row.palette.setColor(QPalette::Window, themeFor(row.palette).controlBorder.lighter(127));
    return row;
}

void PlainTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // Of a tree, some versions of Qt report the current row to screen readers wherever the focus is.
    if (hasFocus())
        QTreeView::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call): no report
}

void PlainTree::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles)
{
    QTreeView::dataChanged(topLeft, bottomRight, roles);
    const QModelIndex current = currentIndex();
    const bool isCurrent =
        current.parent() == topLeft.parent() && current.row() >= topLeft.row() && current.row() <= bottomRight.row();
    if (isCurrent && hasFocus() && roles.contains(Qt::CheckStateRole))
        announce(*this, current.data(Qt::AccessibleTextRole).toString());
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
