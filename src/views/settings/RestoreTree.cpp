// SPDX-License-Identifier: GPL-3.0-or-later
#include "RestoreTree.h"

#include "DayDifferenceDelegate.h"
#include "Fonts.h"
#include "RestoreModel.h"

RestoreTree::RestoreTree(QWidget* parent)
    : PlainTree(parent)
{
    m_delegate = new DayDifferenceDelegate(font(), this);
    setItemDelegate(m_delegate);
    setSelectionMode(NoSelection);
}

void RestoreTree::setModel(QAbstractItemModel* model)
{
    PlainTree::setModel(model);
    if (const auto* days = qobject_cast<RestoreModel*>(model)) {
        m_delegate->makeRoomFor(days->stateNames());
        fitDays();
    }
    expandAll();
    setCurrentIndex(model->index(0, 0));
}

QSize RestoreTree::sizeHint() const
{
    return {fonts::grown(320, font()), fonts::grown(200, font())};
}

void RestoreTree::resizeEvent(QResizeEvent* event)
{
    PlainTree::resizeEvent(event);
    fitDays();
}

void RestoreTree::fitDays()
{
    if (m_delegate->setWidth(viewport()->width() - 2 * indentation()))
        scheduleDelayedItemsLayout();
}
