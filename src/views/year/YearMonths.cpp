// SPDX-License-Identifier: GPL-3.0-or-later
#include "YearMonths.h"

#include "Accessibility.h"

#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int monthsInYear = 12;
constexpr int tileGap = 4;

} // namespace

YearMonths::YearMonths(const CountingRecords& counting, const ViewSettings& viewSettings, QWidget* parent)
    : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    for (int month = 1; month <= monthsInYear; ++month) {
        auto* tile = new MonthTile(counting, viewSettings, this);
        tile->setFocusPolicy(Qt::ClickFocus);
        tile->installEventFilter(this);
        connect(tile, &QAbstractButton::clicked, this, [this, month] { Q_EMIT opened(month, m_reason); });
        m_tiles.push_back(tile);
    }
    setCurrent(1);
}

void YearMonths::setContents(const QList<MonthTile::Contents>& contents)
{
    for (std::size_t i = 0; i < m_tiles.size(); ++i)
        m_tiles[i]->setContents(contents.at(static_cast<qsizetype>(i)));
}

void YearMonths::fitInto(int width)
{
    const MonthTile& first = *m_tiles.front();
    m_columns = 1;
    for (const int columns : {2, 3, 4}) {
        if (columns * (first.leastWidth() + tileGap) - tileGap <= width)
            m_columns = columns;
    }
    const int pitch = first.pitchFor((width + tileGap) / m_columns - tileGap);
    for (MonthTile* tile : m_tiles)
        tile->setPitch(pitch);
    const QSize step = first.size() + QSize(tileGap, tileGap);
    const auto rows = static_cast<int>(m_tiles.size()) / m_columns;
    setFixedSize(m_columns * step.width() - tileGap, rows * step.height() - tileGap);
    for (int place = 0; MonthTile * tile : m_tiles) {
        const QPoint corner(place % m_columns * step.width(), place / m_columns * step.height());
        tile->move(QStyle::visualRect(layoutDirection(), rect(), {corner, tile->size()}).topLeft());
        ++place;
    }
}

void YearMonths::focusMonth(int month, Qt::FocusReason reason)
{
    m_tiles.at(static_cast<std::size_t>(month - 1))->setFocus(reason);
}

void YearMonths::focusCurrent(Qt::FocusReason reason)
{
    m_tiles.at(static_cast<std::size_t>(m_current))->setFocus(reason);
}

void YearMonths::setCurrent(int month)
{
    m_tiles.at(static_cast<std::size_t>(m_current))->setFocusPolicy(Qt::ClickFocus);
    m_current = month - 1;
    m_tiles.at(static_cast<std::size_t>(m_current))->setFocusPolicy(Qt::StrongFocus);
}

int YearMonths::placeAfter(int key, int place) const
{
    const int forward = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (key) {
    case Qt::Key_Left:
        return place - forward;
    case Qt::Key_Right:
        return place + forward;
    case Qt::Key_Up:
        return place - m_columns;
    case Qt::Key_Down:
        return place + m_columns;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return static_cast<int>(m_tiles.size()) - 1;
    default:
        return place;
    }
}

bool YearMonths::moveFocus(int key, int place)
{
    const int target = placeAfter(key, place);
    if (target == place)
        return false;
    if (target >= 0 && target < static_cast<int>(m_tiles.size()))
        focusMonth(target + 1, Qt::TabFocusReason);
    else
        Q_EMIT leftTo(target);
    return true;
}

bool YearMonths::eventFilter(QObject* watched, QEvent* event)
{
    const int place = static_cast<int>(std::ranges::find(m_tiles, watched) - m_tiles.begin());
    switch (event->type()) {
    case QEvent::FocusIn:
        // Tab enters at the month that had the focus last, and leaves from any month.
        setCurrent(place + 1);
        break;
    case QEvent::MouseButtonPress:
        m_reason = Qt::MouseFocusReason;
        break;
    case QEvent::KeyPress:
        m_reason = Qt::ShortcutFocusReason;
        return moveFocus(static_cast<QKeyEvent*>(event)->key(), place);
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
