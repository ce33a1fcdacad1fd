// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"
#include "OpenDays.h"

class AppSettings;
class OpenDaysLine;
class OpenDaysReview;
class TrackerCard;
class ViewSettings;

/// One month and the statistics of its quarter, at first of today's month.
class MonthView final : public CalendarPage {
    Q_OBJECT

public:
    MonthView(DayMarker& marker, const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
              QWidget* parent = nullptr);

protected:
    void showQuarter(const QList<std::shared_ptr<Month>>& months) override;

private:
    /// Shows or hides the line of the days left open. It is built when there are some.
    void refreshOpenDays(bool isTurned);
    void buildOpenDaysLine();

    const ViewSettings& m_viewSettings;
    OpenDays m_openDays;
    MonthCard* m_month;
    TrackerCard* m_quarter;
    OpenDaysLine* m_openDaysLine = nullptr;
    OpenDaysReview* m_review = nullptr;
};
