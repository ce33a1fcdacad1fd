// SPDX-License-Identifier: GPL-3.0-or-later
#include "Page.h"

#include "Card.h"

#include <QApplication>
#include <QVBoxLayout>

Page::Page(QWidget* contents, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(contents);
    // The keys go to what stands on the page.
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { keepInSight(now); });
}

Page::~Page()
{
    // The focus moves on while the contents are taken down, when this is no more than a widget.
    disconnect(qApp, nullptr, this, nullptr);
}

void Page::keepInSight(QWidget* focused)
{
    // A page that moved under a pressed button would turn the click into a drag.
    if (isAncestorOf(focused) && QApplication::mouseButtons() == Qt::NoButton)
        ensureWidgetVisible(focused);
}

Page* makeCardPage(QWidget* contents)
{
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(24, 20, 24, 20);
    column->addWidget(Card::around(contents));
    column->addStretch();
    return new Page(whole);
}
