// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Card.h"

#include <QProperty>

#include <memory>

class CalendarView;
class Month;
class NavigationRow;
class ProgressWidgetView;
class QVBoxLayout;
struct ViewParts;

/// A month's grid with the month's progress tracker below it.
class MonthCard : public Card {
    Q_OBJECT

public:
    explicit MonthCard(const ViewParts& parts, QWidget* parent = nullptr);

    void setMonth(const std::shared_ptr<Month>& month);
    [[nodiscard]] CalendarView& calendar() { return *m_calendar; }
    /// Puts a row above the grid.
    void setNavigation(NavigationRow* row);

private:
    QVBoxLayout* m_column;
    CalendarView* m_calendar;
    ProgressWidgetView* m_tracker;
    QPropertyNotifier m_follower;
};
