// SPDX-License-Identifier: GPL-3.0-or-later
#include "Popover.h"

#include "Accessibility.h"
#include "FocusOrder.h"
#include "Theme.h"

#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QMargins popoverPadding(20, 16, 20, 16);
constexpr qreal popoverRadius = 12.0;
constexpr int popoverGap = 4;
constexpr int shadowReach = 14;
constexpr int shadowDrop = 3;

// Thin layers that add up to a soft edge.
void drawShadow(QPainter& painter, const QRectF& panel)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 5));
    const QRectF lower = panel.translated(0, shadowDrop);
    for (int reach = shadowReach - shadowDrop; reach > 0; --reach)
        painter.drawRoundedRect(lower.adjusted(-reach, -reach, reach, reach), popoverRadius + reach,
                                popoverRadius + reach);
}

} // namespace

Popover::Popover(QWidget* anchor, Side side)
    : QWidget(anchor, Qt::Popup | Qt::FramelessWindowHint)
    , m_side(side)
    , m_column(new QVBoxLayout(this))
{
    setAccessibleRole(*this, QAccessible::Dialog);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::TabFocus);
    m_column->setContentsMargins(popoverPadding);
}

void Popover::setBlended(bool isBlended)
{
    m_isBlended = isBlended;
    setAttribute(Qt::WA_TranslucentBackground, isBlended);
    m_column->setContentsMargins(popoverPadding + shadow());
}

int Popover::shadow() const
{
    return m_isBlended ? shadowReach : 0;
}

void Popover::popUp()
{
    fitToContents();
    const QRect anchor(parentWidget()->mapToGlobal(QPoint()), parentWidget()->size());
    // The shadow may leave the screen.
    const QRect room = parentWidget()->screen()->availableGeometry().marginsAdded(QMargins() + shadow());
    const QPoint place = m_side == Side::Below ? placeBelow(anchor) : placeBeside(anchor, room);
    move(qBound(room.left(), place.x(), qMax(room.left(), room.right() - width())),
         qBound(room.top(), place.y(), qMax(room.top(), room.bottom() - height())));
    show();
    setFocus(Qt::PopupFocusReason); // so that a screen reader says it
}

void Popover::fitToContents()
{
    layout()->activate(); // or labels would have the heights of their last texts
    QSize size = sizeHint();
    if (layout()->hasHeightForWidth())
        size.setHeight(layout()->totalHeightForWidth(size.width()));
    resize(size.boundedTo(parentWidget()->screen()->availableSize() + 2 * QSize(shadow(), shadow())));
}

QPoint Popover::placeBelow(const QRect& anchor) const
{
    const QPoint below = layoutDirection() == Qt::LeftToRight ? anchor.bottomLeft() - QPoint(shadow(), 0)
                                                              : anchor.bottomRight() - QPoint(width() - shadow(), 0);
    return below + QPoint(0, popoverGap - shadow());
}

QPoint Popover::placeBeside(const QRect& anchor, const QRect& room) const
{
    const int left = anchor.left() - popoverGap - width() + shadow();
    const int right = anchor.right() + 1 + popoverGap - shadow();
    const bool fitsLeft = left >= room.left();
    const bool fitsRight = right + width() <= room.right() + 1;
    const bool isRight = isLeftToRight() ? fitsRight || !fitsLeft : fitsRight && !fitsLeft;
    return {isRight ? right : left, anchor.top() - shadow()};
}

bool Popover::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

void Popover::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    const QRectF panel = QRectF(rect()).marginsRemoved(QMarginsF(QMargins() + shadow()));
    const qreal radius = m_isBlended ? popoverRadius : 0.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isBlended)
        drawShadow(painter, panel);
    // In a dark window a shadow is hardly seen.
    const bool isSetOff = m_isBlended && lookOf(palette()).scheme == ColorScheme::Light;
    painter.setPen(isSetOff ? theme.border : theme.controlBorder);
    painter.setBrush(theme.card);
    painter.drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
