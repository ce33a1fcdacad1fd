// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "Popover.h"
#include "StatusPicker.h"

#include <QDate>

#include <memory>

class Month;

/// The menu of a day: its states, and if the month is stored, why one is out of office, whether it is a workday, and
/// its details.
class DayMenu : public StatusPicker {
    Q_OBJECT

public:
    DayMenu(const CalendarParts& parts, std::shared_ptr<Month> month, qsizetype index, QWidget* cell);

Q_SIGNALS:
    void detailsRequested();
    /// Emitted with a new popover, for the window to open in its own way.
    void popoverRequested(Popover* popover);

private:
    void addKinds();
    void addDayOff();
    void requestOtherKind();
    void toggleKind(int kind, bool isChosen);
    void toggleDayOff(bool isOff);

    CalendarParts m_parts;
    std::shared_ptr<Month> m_month;
    qsizetype m_index;
    QWidget* m_cell;
    QDate m_date;
};
