// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AbsencePicker.h"

#include <QDate>

#include <memory>

class Month;

/// The menu of a day: its states, and if the month is stored, why one is out of office, whether it is a workday, and
/// its details.
class DayMenu : public AbsencePicker {
    Q_OBJECT

public:
    DayMenu(const CalendarParts& parts, const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell);

Q_SIGNALS:
    void detailsRequested();

private:
    void addDayOff();
    void toggleDayOff(bool isOff);

    QDate m_date;
};
