// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Card.h"

#include <memory>

class AppSettings;
class CalendarView;
class Clock;
class ModelContext;
class Month;
class NavigationRow;
class ProgressWidgetView;
class QVBoxLayout;
class ViewSettings;

/// The grid of a month with its progress tracker below.
class MonthCard : public Card {
    Q_OBJECT

public:
    MonthCard(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
              QWidget* parent = nullptr);

    void setMonth(const std::shared_ptr<Month>& month);
    [[nodiscard]] CalendarView& calendar() { return *m_calendar; }
    /// Adds the row above the grid.
    void setNavigation(NavigationRow* row);

private:
    QVBoxLayout* m_column;
    CalendarView* m_calendar;
    ProgressWidgetView* m_tracker;
};
