// SPDX-License-Identifier: GPL-3.0-or-later
#include "Page.h"

#include "Card.h"
#include "ThinScrollBarStyle.h"
#include "WindowSize.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// At a fractional scale a window may be a little smaller than asked for, because it has a whole number of pixels.
constexpr QSize roundingLoss(1, 1);

} // namespace

Page::Page(QWidget* contents, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(contents);
    ThinScrollBarStyle::applyTo(*this);
    // The controls on the page take the focus, not the page.
    setFocusPolicy(Qt::NoFocus);
    qApp->installEventFilter(this);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &Page::applyFootRoom);
}

void Page::reveal(QWidget& widget)
{
    constexpr int surroundings = 50;
    ensureWidgetVisible(&widget, surroundings, surroundings + m_footRoom);
}

void Page::setFootRoom(int room)
{
    m_footRoom = room;
    applyFootRoom();
}

void Page::applyFootRoom()
{
    // Room that has been scrolled into stays until it is scrolled out of sight again, or the contents would jump.
    const QScrollBar& bar = *verticalScrollBar();
    const int present = widget()->contentsMargins().bottom();
    const int inUse = bar.value() > 0 ? bar.value() - (bar.maximum() - present) : 0;
    const int room = qMax(m_footRoom, qMin(inUse, present));
    if (room != present)
        widget()->setContentsMargins(0, 0, 0, room);
}

QSize Page::minimumSizeHint() const
{
    constexpr int leastHeight = 160;
    const QSize least = widget()->minimumSizeHint();
    return QSize(least.width(), qMin(least.height(), leastHeight)) + roundingLoss;
}

QSize Page::sizeHint() const
{
    return widget()->sizeHint() + roundingLoss;
}

bool Page::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && watched->isWidgetType()) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // For people who use the mouse, nothing moves. A window that becomes active stays as it was left.
        if (reason != Qt::MouseFocusReason && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            reveal(*static_cast<QWidget*>(watched));
    }
    return QScrollArea::eventFilter(watched, event);
}

Page* makeCardPage(QWidget* contents)
{
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(pageMargins);
    column->addWidget(Card::around(contents));
    column->addStretch();
    return new Page(whole);
}
