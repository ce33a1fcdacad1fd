// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayMenu.h"

#include "CountingRecords.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"

DayMenu::DayMenu(const CalendarParts& parts, const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell)
    : AbsencePicker(parts, DayMarker::stateOf(*month, index), cell)
    , m_date(month->dateOf(month->days.value().at(index).id))
{
    if (!parts.marker.context().contains(*month))
        return;
    addSeparator();
    addKinds(parts.marker.markOn(*month, m_date)->absenceKind,
             [&marker = parts.marker, month, index](int kind) { marker.markAbsence(*month, index, kind); });
    addDayOff();
    addSeparator();
    QAction* details = addEntry(tr("Details…"));
    details->setShortcut(Qt::Key_Return); // of the focused day
    details->setShortcutVisibleInContextMenu(true);
    connect(details, &QAction::triggered, this, &DayMenu::detailsRequested);
}

void DayMenu::addDayOff()
{
    const Counting& counting = parts().counting.counting();
    const bool isOff = counting.dayOff(m_date) != nullptr;
    if (!isOff && !counting.isScheduled(m_date))
        return;
    connect(addTicked(tr("Not a Workday"), isOff), &QAction::toggled, this, &DayMenu::toggleDayOff);
}

void DayMenu::toggleDayOff(bool isOff)
{
    close();
    if (isOff)
        parts().counting.addDaysOff({{.date = m_date}});
    else
        parts().counting.removeDaysOff({m_date});
}
