// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Period.h"

#include <QWidget>

class AppSettings;
class Card;
class Clock;
class ModelContext;
class MonthCard;
class NavigationRow;
class ProgressWidgetView;
class QDate;
class QLabel;
class ViewSettings;

/// One month and how its quarter stands. Starts at today.
class MonthView : public QWidget {
    Q_OBJECT

public:
    MonthView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
              QWidget* parent = nullptr);

    void showMonth(const YearMonth& period);
    /// Gives a day the focus. One outside the calendar is passed over.
    void showDay(QDate date);
    [[nodiscard]] YearMonth period() const { return m_period; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void turnTo(const std::optional<YearMonth>& period);
    void refresh();

    ModelContext& m_context;
    const ViewSettings& m_viewSettings;
    YearMonth m_period;
    Card* m_quarter;
    ProgressWidgetView* m_quarterTracker;
    NavigationRow* m_navigation;
    MonthCard* m_month;
    QLabel* m_error;
};
