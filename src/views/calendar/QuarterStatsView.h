// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Period.h"
#include "TrackerCard.h"

class Clock;
class CountingRecords;
class NavigationRow;
class QLabel;

/// The statistics of a quarter. The owner decides which quarter is shown.
class QuarterStatsView : public TrackerCard {
    Q_OBJECT

public:
    /// The navigation, if there is one, is at the top.
    explicit QuarterStatsView(const CalendarParts& parts, NavigationRow* navigation = nullptr,
                              QWidget* parent = nullptr);

    void setQuarter(const YearQuarter& quarter, const QList<std::shared_ptr<Month>>& months);

private:
    void refresh();

    const Clock& m_clock;
    const CountingRecords& m_counting;
    QList<std::shared_ptr<Month>> m_months;
    YearQuarter m_quarter;
    QLabel* m_title;
    QLabel* m_workdays;
};
