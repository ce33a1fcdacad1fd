// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"

class AppSettings;
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
    TrackerCard* m_quarter;
};
