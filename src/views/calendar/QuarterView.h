// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"

#include <array>

class AppSettings;
class Clock;
class ModelContext;
class MonthCard;
class QBoxLayout;
class QLabel;
class QuarterStatsView;
class ViewSettings;

/// The three months of a quarter and its statistics, at first of today's quarter. Months are side by side if there is
/// room.
class QuarterView : public CalendarPage {
    Q_OBJECT

public:
    QuarterView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings,
                const Clock& clock, QWidget* parent = nullptr);

    void showQuarter(const YearQuarter& quarter);
    void previous() override;
    void next() override;
    void showDay(QDate date) override;
    [[nodiscard]] YearQuarter quarter() const { return m_quarter; }

    /// The width of one month even while three are side by side, so that the window can be made narrower again.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void turnTo(const std::optional<YearQuarter>& quarter);
    void refresh();

    YearQuarter m_quarter;
    QuarterStatsView* m_stats;
    std::array<MonthCard*, 3> m_cards{};
    QBoxLayout* m_row;
    QLabel* m_error;
};
