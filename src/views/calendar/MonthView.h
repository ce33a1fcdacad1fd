// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "GridPage.h"
#include "OpenDays.h"

class OpenDaysLine;
class OpenDaysReview;
class TrackerCard;

/// One month and the statistics of its quarter, at first of today's month.
class MonthView final : public GridPage {
    Q_OBJECT

public:
    explicit MonthView(const CalendarParts& parts, QWidget* parent = nullptr);

protected:
    void showQuarter(const QList<std::shared_ptr<Month>>& months) override;

private:
    /// Shows or hides the line of the days left open. It is built when there are some.
    void refreshOpenDays(bool isTurned);
    void buildOpenDaysLine();

    OpenDays m_openDays;
    MonthCard* m_month;
    TrackerCard* m_quarter;
    OpenDaysLine* m_openDaysLine = nullptr;
    OpenDaysReview* m_review = nullptr;
};
