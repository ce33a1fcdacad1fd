// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"

class AppSettings;
class Card;
class Clock;
class ModelContext;
class MonthCard;
class NavigationRow;
class ProgressWidgetView;
class QLabel;
class ViewSettings;

/// One month and the statistics of its quarter, at first of today's month.
class MonthView : public CalendarPage {
    Q_OBJECT

public:
    MonthView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
              QWidget* parent = nullptr);

    void showMonth(const YearMonth& period);
    void previous() override;
    void next() override;
    void showDay(QDate date) override;
    [[nodiscard]] YearMonth period() const { return m_period; }

private:
    void build();
    void turnTo(const std::optional<YearMonth>& period);
    void refresh();

    const ViewSettings& m_viewSettings;
    YearMonth m_period;
    Card* m_quarter;
    ProgressWidgetView* m_quarterTracker;
    NavigationRow* m_navigation;
    MonthCard* m_month;
    QLabel* m_error;
};
