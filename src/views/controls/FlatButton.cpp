// SPDX-License-Identifier: GPL-3.0-or-later
#include "FlatButton.h"

#include "ReturnKey.h"
#include "Theme.h"

#include <QCoreApplication>
#include <QPainter>

FlatButton::FlatButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void FlatButton::forgetPointer()
{
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(this, &leave);
    update();
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

void FlatButton::paintFace(QPainter& painter, const QColor& hovered) const
{
    constexpr qreal radius = 6.0;
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled() && (underMouse() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? themeFor(palette()).pressed : hovered);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    m_focusVisible.drawRing(painter, *this, QRectF(rect()).adjusted(1, 1, -1, -1), radius);
}
