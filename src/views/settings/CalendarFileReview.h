// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaysOffReview.h"

struct CalendarFileContents;

/// The choice of the days off in a calendar file.
class CalendarFileReview : public DaysOffReview {
    Q_OBJECT

public:
    CalendarFileReview(CountingRecords& counting, const QString& fileName, const CalendarFileContents& contents,
                       QDate today, QWidget* parent = nullptr);

protected:
    [[nodiscard]] bool store(const QList<DayOff>& chosen, const QList<QDate>& takenOut) override;

private:
    void showProblems(const QStringList& problems);
    [[nodiscard]] ListedDayOff listed(DayOff dayOff, const QSet<QDate>& present);
};
