// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayMenu.h"

#include "AccessLetters.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "OtherKind.h"

DayMenu::DayMenu(const CalendarParts& parts, std::shared_ptr<Month> month, qsizetype index, QWidget* cell)
    : StatusPicker(DayMarker::stateOf(*month, index), cell->parentWidget())
    , m_parts(parts)
    , m_month(std::move(month))
    , m_index(index)
    , m_cell(cell)
    , m_date(m_month->dateOf(m_month->days.value().at(index).id))
{
    if (!parts.marker.context().contains(*m_month))
        return;
    addSeparator();
    addKinds();
    addDayOff();
    addSeparator();
    QAction* details = addEntry(tr("Details…"));
    details->setShortcut(Qt::Key_Return); // of the focused day
    details->setShortcutVisibleInContextMenu(true);
    connect(details, &QAction::triggered, this, &DayMenu::detailsRequested);
}

void DayMenu::addKinds()
{
    QMenu& kinds = addSubmenu(tr("Out of Office As"));
    AccessLetters letters;
    const auto mark = m_parts.marker.markOn(*m_month, m_date);
    for (const AbsenceKind& kind : m_parts.counting.absenceKinds()) {
        QAction* entry = addTicked(kinds, letters.mark(description(kind)), mark->absenceKind == kind.id);
        connect(entry, &QAction::toggled, this, [this, id = kind.id](bool isChosen) { toggleKind(id, isChosen); });
    }
    kinds.addSeparator();
    connect(kinds.addAction(letters.mark(tr("Other…"))), &QAction::triggered, this, &DayMenu::requestOtherKind);
}

void DayMenu::addDayOff()
{
    const Counting& counting = m_parts.counting.counting();
    const bool isOff = counting.dayOff(m_date) != nullptr;
    if (!isOff && !counting.isScheduled(m_date))
        return;
    connect(addTicked(tr("Not a Workday"), isOff), &QAction::toggled, this, &DayMenu::toggleDayOff);
}

void DayMenu::requestOtherKind()
{
    close();
    const auto choose = [&marker = m_parts.marker, month = m_month, index = m_index](const AbsenceKind& kind) {
        marker.markAbsence(*month, index, kind.id);
    };
    Q_EMIT popoverRequested(new OtherKind(m_parts.counting, choose, m_cell));
}

void DayMenu::toggleKind(int kind, bool isChosen)
{
    close();
    m_parts.marker.markAbsence(*m_month, m_index, isChosen ? kind : AbsenceKind::none);
}

void DayMenu::toggleDayOff(bool isOff)
{
    close();
    if (isOff)
        m_parts.counting.addDaysOff({{.date = m_date}});
    else
        m_parts.counting.removeDaysOff({m_date});
}
