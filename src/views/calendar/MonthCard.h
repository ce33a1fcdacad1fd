// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TrackerCard.h"

class CalendarView;
class NavigationRow;

/// The grid of a month with its progress tracker below.
class MonthCard : public TrackerCard {
    Q_OBJECT

public:
    /// The navigation, if there is one, is above the grid.
    explicit MonthCard(const CalendarParts& parts, NavigationRow* navigation = nullptr, QWidget* parent = nullptr);

    void setMonth(const std::shared_ptr<Month>& month);
    [[nodiscard]] CalendarView& calendar() { return *m_calendar; }

private:
    CalendarView* m_calendar;
};
