// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Card.h"
#include "Period.h"

#include <memory>

class AppSettings;
class Clock;
class Month;
class NavigationRow;
class ProgressWidgetView;
class QLabel;
class ViewSettings;

/// The statistics of a quarter, with navigation. The owner decides which quarter is shown.
class QuarterStatsView : public Card {
    Q_OBJECT

public:
    QuarterStatsView(const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
                     bool showNavigation, QWidget* parent = nullptr);

    void setQuarter(const YearQuarter& quarter, const QList<std::shared_ptr<Month>>& months);

Q_SIGNALS:
    void quarterRequested(const YearQuarter& quarter);

private:
    void refresh();
    void request(const std::optional<YearQuarter>& quarter);

    const Clock& m_clock;
    YearQuarter m_quarter;
    QList<std::shared_ptr<Month>> m_months;
    NavigationRow* m_navigation;
    QLabel* m_title;
    QLabel* m_workdays;
    ProgressWidgetView* m_tracker;
};
