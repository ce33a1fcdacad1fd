// SPDX-License-Identifier: GPL-3.0-or-later
#include "FlatButton.h"

#include "ReturnKey.h"
#include "Theme.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

FlatButton::FlatButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void FlatButton::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QAbstractButton::focusInEvent(event);
}

void FlatButton::keyPressEvent(QKeyEvent* event)
{
    m_focusVisible.show();
    if (!clickByReturn(*this, *event))
        QAbstractButton::keyPressEvent(event);
}

void FlatButton::leaveEvent(QEvent* event)
{
    setHovered(false);
    QAbstractButton::leaveEvent(event);
}

void FlatButton::mouseMoveEvent(QMouseEvent* event)
{
    // Not on entering, because with Wayland a popup that closes makes Qt enter what was under the pointer before.
    setHovered(rect().contains(event->position().toPoint()));
    QAbstractButton::mouseMoveEvent(event);
}

void FlatButton::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<FlatButton> self(this);
    QAbstractButton::mouseReleaseEvent(event);
    // A popup takes the pointer.
    if (self && QApplication::activePopupWidget() != nullptr)
        setHovered(false);
}

void FlatButton::setHovered(bool isHovered)
{
    if (std::exchange(m_isHovered, isHovered) != isHovered)
        update();
}

void FlatButton::paintFace(QPainter& painter, const QColor& hovered) const
{
    constexpr qreal radius = 6.0;
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled() && (m_isHovered || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? themeFor(palette()).pressed : hovered);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    m_focusVisible.drawRing(painter, *this, QRectF(rect()).adjusted(1, 1, -1, -1), radius);
}

void FlatButton::paintRing(QPainter& painter, const QRectF& area, qreal radius, const QColor& color) const
{
    m_focusVisible.drawRing(painter, *this, area, radius, color);
}
