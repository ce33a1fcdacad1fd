// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QDate>
#include <QList>
#include <QObject>

class CalendarView;
class DayMarker;
class StatusPicker;

/// Goes through unmarked days of the month in a grid, one by one, with a menu of states beside each.
class OpenDaysReview : public QObject {
    Q_OBJECT

public:
    OpenDaysReview(DayMarker& marker, CalendarView& calendar);

    /// The days are of the month that the grid shows.
    void start(const QList<QDate>& days);

private:
    void showNext();
    void addEntries(StatusPicker& picker);
    void markDay(QDate day, DayState state);
    void markAll(DayState state);
    [[nodiscard]] bool isOpen(QDate day) const;

    DayMarker& m_marker;
    CalendarView& m_calendar;
    QList<QDate> m_days;
    /// The place in the list of the day that comes next.
    qsizetype m_next = 0;
};
