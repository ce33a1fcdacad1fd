// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaySpan.h"
#include "SelectedRun.h"

#include <QDate>

/// Where the cells of a month are drawn when rows of days begin on any day of the week. The stored cells begin on a
/// Sunday. Places are counted from the first one of the first row.
class GridOrder {
public:
    static constexpr int columns = 7;
    static constexpr int rows = 6;
    /// Enough for every month: one of 31 days that begins in the last column ends here.
    static constexpr int places = 37;

    GridOrder() = default;
    GridOrder(Qt::DayOfWeek weekStart, QDate firstOfMonth)
        : m_first(firstOfMonth)
        , m_firstPlace(columnOf(firstOfMonth.dayOfWeek(), weekStart))
        , m_firstIndex(columnOf(firstOfMonth.dayOfWeek(), Qt::Sunday))
    {
    }

    /// The column of a day of the week, 1 to 7.
    [[nodiscard]] static int columnOf(int dayOfWeek, Qt::DayOfWeek weekStart)
    {
        return (dayOfWeek - weekStart + columns) % columns;
    }

    /// The stored cell of a place. A filler may have none, and then this is no index.
    [[nodiscard]] qsizetype indexAt(qsizetype place) const { return place - m_firstPlace + m_firstIndex; }
    [[nodiscard]] qsizetype placeOf(qsizetype index) const { return index - m_firstIndex + m_firstPlace; }
    [[nodiscard]] QDate dateAt(qsizetype place) const { return m_first.addDays(place - m_firstPlace); }
    /// Which days of the month are selected at a place and beside it.
    [[nodiscard]] SelectedRun runAt(qsizetype place, const DaySpan& selected) const
    {
        const auto isSelected = [&](qsizetype other) {
            const QDate date = dateAt(other);
            return other / columns == place / columns && date.month() == m_first.month() && selected.contains(date);
        };
        return {isSelected(place), isSelected(place - 1), isSelected(place + 1)};
    }

private:
    QDate m_first;
    int m_firstPlace = 0;
    int m_firstIndex = 0;
};
