// SPDX-License-Identifier: GPL-3.0-or-later
#include "TodayEntries.h"

#include "Clock.h"
#include "DayMarker.h"
#include "Month.h"
#include "StateMark.h"
#include "StoreError.h"
#include "StoredMonths.h"
#include "Theme.h"

#include <QActionGroup>
#include <QMenu>
#include <QPainter>
#include <QPixmap>

#include <array>

namespace {

// Panels show icons of 16 pixels, or of 32 on a fine screen.
constexpr std::array iconSizes{16, 32};
// As in the menu of a day, and drawn in its size, so that the corners are as round.
constexpr QRectF swatchPlace(0, 3, 24, 18);

QIcon iconOf(DayState state, const QPalette& palette)
{
    QIcon icon;
    for (const int size : iconSizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(size / swatchPlace.width(), size / swatchPlace.width());
        drawDaySwatch(painter, swatchPlace, themeFor(palette), {1, state, true});
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

TodayEntries::TodayEntries(QMenu& menu, DayMarker& marker, const Clock& clock)
    : m_marker(marker)
    , m_clock(clock)
{
    menu.addAction(tr("Today"))->setEnabled(false);
    auto* group = new QActionGroup(this);
    for (const DayState state : allDayStates) {
        QAction* entry = group->addAction(menu.addAction(iconOf(state, menu.palette()), description(state)));
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, this, [this, state] { set(state); });
        m_entries.append(entry);
    }
    connect(&marker, &DayMarker::changed, this, &TodayEntries::refresh);
    connect(&clock, &Clock::dayChanged, this, &TodayEntries::refresh);
    refresh();
}

void TodayEntries::set(DayState state)
{
    try {
        m_marker.mark({{m_clock.today(), state}}, ChangedBy::Hand);
    } catch (const StoreError&) {
        Q_EMIT failed();
    }
    refresh(); // the entry is ticked already, also if today could not be set
}

void TodayEntries::refresh()
{
    const QDate today = m_clock.today();
    try {
        const auto month = storedMonth(m_marker.context(), today);
        const auto mark = month ? m_marker.markOn(*month, today) : std::nullopt;
        m_current = mark ? mark->state : DayState::UNKNOWN;
    } catch (const StoreError&) {
        // What was known last stays.
    }
    m_entries.at(static_cast<qsizetype>(m_current))->setChecked(true);
}
