// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaysOffReview.h"

class HolidayChooser;

/// The choice of a region's public holidays.
class HolidayReview : public DaysOffReview {
    Q_OBJECT

public:
    HolidayReview(CountingRecords& counting, QDate today, QWidget* parent = nullptr);

    void takeFocus() override;

protected:
    [[nodiscard]] bool store(const QList<DayOff>& chosen, const QList<QDate>& takenOut) override;

private:
    void showHolidays();
    /// The holidays of the previous region that are not among those shown, so they are taken out.
    [[nodiscard]] QList<ListedDayOff> holidaysThatGo(const QList<ListedDayOff>& shown, const QList<DayOff>& present);
    [[nodiscard]] ListedDayOff listed(DayOff holiday, const QList<DayOff>& present, bool wasAdded);

    QDate m_today;
    /// The region whose holidays are days off already.
    QString m_before;
    HolidayChooser* m_chooser;
};
