// SPDX-License-Identifier: GPL-3.0-or-later
#include "RestoreTree.h"

#include "DayDifferenceDelegate.h"
#include "Fonts.h"
#include "ThinScrollBarStyle.h"

#include <QFocusEvent>

RestoreTree::RestoreTree(QWidget* parent)
    : QTreeView(parent)
{
    setFont(fonts::body(font()));
    m_delegate = new DayDifferenceDelegate(font(), this);
    setItemDelegate(m_delegate);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ThinScrollBarStyle::applyTo(*this);
}

void RestoreTree::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    expandAll();
    setCurrentIndex(model->index(0, 0));
}

QSize RestoreTree::sizeHint() const
{
    return {fonts::grown(320, font()), fonts::grown(200, font())};
}

// The style shows where the focus is only once the keyboard is used.

void RestoreTree::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        window()->setAttribute(Qt::WA_KeyboardFocusChange);
    QTreeView::focusInEvent(event);
}

void RestoreTree::keyPressEvent(QKeyEvent* event)
{
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    QTreeView::keyPressEvent(event);
}

void RestoreTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    if (m_delegate->setWidth(viewport()->width() - 2 * indentation()))
        scheduleDelayedItemsLayout();
}
