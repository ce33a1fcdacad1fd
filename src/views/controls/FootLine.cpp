// SPDX-License-Identifier: GPL-3.0-or-later
#include "FootLine.h"

#include "Labels.h"
#include "LinkButton.h"

#include <QCursor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto lifetime = 8s;
constexpr int distance = 8;

} // namespace

FootLine::FootLine(QWidget& area)
    : Card(area.parentWidget())
    , m_area(area)
    , m_text(labels::text({}))
    , m_dot(labels::dim(u"\u00b7"_s))
    , m_link(new LinkButton({}))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 4, 10, 4);
    row->setSpacing(4);
    row->addWidget(m_text, 1);
    row->addSpacing(6);
    row->addWidget(m_dot);
    row->addWidget(m_link);
    m_link->setObjectName("footLink"_L1);
    connect(m_link, &QAbstractButton::clicked, this, &FootLine::linkPressed);
    m_link->installEventFilter(this);
    m_area.installEventFilter(this);
    m_timer.setSingleShot(true);
    m_timer.setInterval(lifetime);
    connect(&m_timer, &QTimer::timeout, this, &FootLine::dismiss);
    hide();
}

void FootLine::showText(const QString& text, const QString& link)
{
    m_text->setText(text);
    m_link->setText(link);
    m_link->setAccessibleDescription(text);
    if (link.isEmpty() && m_link->hasFocus())
        Q_EMIT focusLost();
    m_link->setVisible(!link.isEmpty());
    m_dot->setVisible(!link.isEmpty());
    place();
    show();
    raise();
    restartTimer();
    Q_EMIT footRoomChanged();
}

void FootLine::dismiss()
{
    if (window()->focusWidget() == m_link)
        Q_EMIT focusLost();
    hide();
}

QString FootLine::text() const
{
    return m_text->text();
}

int FootLine::footRoom() const
{
    return isHidden() || !m_isAtFoot ? 0 : height() + distance;
}

void FootLine::place()
{
    const QRect room = m_area.geometry().adjusted(distance, distance, -distance, -distance);
    const QSize size = sizeIn(room.width());
    const auto at = [&](Qt::Alignment edge) {
        return QStyle::alignedRect(Qt::LeftToRight, edge | Qt::AlignHCenter, size, room);
    };
    m_isAtFoot = !isInUse(at(Qt::AlignBottom));
    setGeometry(at(m_isAtFoot ? Qt::AlignBottom : Qt::AlignTop));
}

QSize FootLine::sizeIn(int width)
{
    m_text->setWordWrap(false);
    const QSize size = sizeHint();
    if (size.width() <= width)
        return size;
    m_text->setWordWrap(true);
    return {width, layout()->totalHeightForWidth(width)};
}

bool FootLine::isInUse(const QRect& place) const
{
    const QPoint pointer = parentWidget()->mapFromGlobal(QCursor::pos());
    // What is in the line itself does not drive it away.
    const auto isHere = [this](const QRect& rect) { return isVisible() && geometry().contains(rect.center()); };
    if (place.contains(pointer) && !isHere({pointer, QSize(1, 1)}))
        return true;
    const QWidget* focused = window()->focusWidget();
    if (focused == nullptr || !m_area.isAncestorOf(focused) || !focused->isVisible())
        return false;
    return place.intersects({focused->mapTo(parentWidget(), QPoint()), focused->size()});
}

void FootLine::restartTimer()
{
    if (m_isHovered || m_link->hasFocus())
        m_timer.stop();
    else if (isVisible())
        m_timer.start();
}

void FootLine::enterEvent(QEnterEvent* event)
{
    Card::enterEvent(event);
    m_isHovered = true;
    restartTimer();
}

void FootLine::leaveEvent(QEvent* event)
{
    Card::leaveEvent(event);
    m_isHovered = false;
    restartTimer();
}

void FootLine::hideEvent(QHideEvent* event)
{
    Card::hideEvent(event);
    m_isHovered = false;
    m_timer.stop();
    Q_EMIT footRoomChanged();
}

void FootLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        Card::keyPressEvent(event);
}

bool FootLine::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == &m_area && isVisible()) {
            place();
            Q_EMIT footRoomChanged();
        }
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (watched == m_link)
            restartTimer();
        break;
    default:
        break;
    }
    return Card::eventFilter(watched, event);
}
