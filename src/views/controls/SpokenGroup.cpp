// SPDX-License-Identifier: GPL-3.0-or-later
#include "SpokenGroup.h"

#include "Accessibility.h"
#include "ReturnKey.h"
#include "Theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal groupRadius = 6.0;

bool isLeftButton(const QEvent& event)
{
    return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

} // namespace

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

void SpokenGroup::setPressable(QWidget* target)
{
    if (target == m_target)
        return;
    if (m_target) {
        m_target->removeEventFilter(this);
        m_target->unsetCursor();
        setHovered(false);
    }
    m_target = target;
    setAccessibleRole(*this, target == nullptr ? QAccessible::StaticText : QAccessible::PushButton);
    if (target == nullptr)
        return;
    target->installEventFilter(this);
    target->setCursor(Qt::PointingHandCursor);
}

bool SpokenGroup::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_target)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        setHovered(event->type() == QEvent::Enter);
        break;
    case QEvent::MouseButtonPress:
        m_isDown = isLeftButton(*event);
        return m_isDown;
    case QEvent::MouseButtonRelease:
        return isLeftButton(*event) && press(*event);
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool SpokenGroup::press(const QEvent& event)
{
    const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
    if (!std::exchange(m_isDown, false) || !m_target->rect().contains(place))
        return false;
    setHovered(false); // what opens takes the pointer
    Q_EMIT pressed();
    return true;
}

void SpokenGroup::setHovered(bool isHovered)
{
    if (std::exchange(m_isHovered, isHovered) != isHovered)
        update();
}

void SpokenGroup::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QWidget::focusInEvent(event);
}

void SpokenGroup::keyPressEvent(QKeyEvent* event)
{
    if (!m_target || (event->key() != Qt::Key_Space && !isReturn(*event)))
        return QWidget::keyPressEvent(event);
    m_focusVisible.show();
    if (!event->isAutoRepeat())
        Q_EMIT pressed();
}

void SpokenGroup::paintGround(QPainter& painter) const
{
    if (!m_isHovered || !m_target)
        return;
    const QRect area = m_target == this ? rect().adjusted(1, 1, -1, -1) : m_target->geometry();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(themeFor(palette()).page);
    painter.drawRoundedRect(area, groupRadius, groupRadius);
}

void SpokenGroup::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_focusVisible.drawRing(painter, *this, QRectF(rect()).adjusted(1 + m_ringInset, 1, -1 - m_ringInset, -1),
                            groupRadius);
}
