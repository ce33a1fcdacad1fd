// SPDX-License-Identifier: GPL-3.0-or-later
#include "SpokenGroup.h"

#include "Accessibility.h"

#include <QPainter>

using namespace Qt::StringLiterals;

SpokenGroup::SpokenGroup(int ringInset, QWidget* parent)
    : QWidget(parent)
    , m_ringInset(ringInset)
{
    setAccessibleRole(*this, QAccessible::StaticText); // of a group, readers say the labels too
    setFocusPolicy(Qt::TabFocus);
}

void SpokenGroup::setSpokenText(const QString& title, const QStringList& texts)
{
    setAccessibleName(title + ": "_L1 + texts.join(". "_L1));
}

void SpokenGroup::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QWidget::focusInEvent(event);
}

void SpokenGroup::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal radius = 6.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_focusVisible.drawRing(painter, *this, QRectF(rect()).adjusted(1 + m_ringInset, 1, -1 - m_ringInset, -1), radius);
}
