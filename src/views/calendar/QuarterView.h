// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "GridPage.h"

class QBoxLayout;
class QuarterStatsView;

/// The three months of a quarter and its statistics, at first of today's quarter. Months are side by side if there is
/// room.
class QuarterView final : public GridPage {
    Q_OBJECT

public:
    explicit QuarterView(const CalendarParts& parts, QWidget* parent = nullptr);

    /// The width of one month even while three are side by side, so that the window can be made narrower again.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showQuarter(const QList<std::shared_ptr<Month>>& months) override;

private:
    QuarterStatsView* m_stats;
    QBoxLayout* m_row;
};
