// SPDX-License-Identifier: GPL-3.0-or-later
#include "Page.h"

#include "Card.h"
#include "ThinScrollBarStyle.h"

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

Page::Page(QWidget* contents, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(contents);
    auto* barStyle = new ThinScrollBarStyle;
    barStyle->setParent(this);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
        bar->setStyle(barStyle);
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
    // The controls on the page take the focus, not the page.
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) { scrollToFocused(now); });
}

Page::~Page()
{
    // The focus changes while the contents are being destroyed, when this is only a QWidget any more.
    disconnect(qApp, nullptr, this, nullptr);
}

QSize Page::minimumSizeHint() const
{
    constexpr int leastHeight = 160;
    const QSize least = widget()->minimumSizeHint();
    return {least.width(), qMin(least.height(), leastHeight)};
}

void Page::scrollToFocused(QWidget* focused)
{
    // Scrolling under a pressed mouse button would turn the click into a drag.
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
