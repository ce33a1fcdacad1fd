// SPDX-License-Identifier: GPL-3.0-or-later
#include "AbsencePicker.h"

#include "AccessLetters.h"
#include "CountingRecords.h"
#include "OtherKind.h"

AbsencePicker::AbsencePicker(const CalendarParts& parts, std::optional<DayState> current, QWidget* cell, ClickKeys keys)
    : StatusPicker(current, cell->parentWidget(), keys)
    , m_parts(parts)
    , m_cell(cell)
{
}

void AbsencePicker::addKinds(int current, const std::function<void(int kind)>& choose)
{
    QMenu& kinds = addSubmenu(tr("Out of Office As"));
    AccessLetters letters;
    for (const AbsenceKind& kind : m_parts.counting.absenceKinds()) {
        QAction* entry = addTicked(kinds, letters.mark(description(kind)), current == kind.id);
        connect(entry, &QAction::toggled, this, [this, choose, id = kind.id](bool isChosen) {
            close();
            choose(isChosen ? id : AbsenceKind::none);
        });
    }
    kinds.addSeparator();
    connect(kinds.addAction(letters.mark(tr("Other…"))), &QAction::triggered, this,
            [this, choose] { requestOtherKind(choose); });
}

void AbsencePicker::requestOtherKind(const std::function<void(int kind)>& choose)
{
    close();
    const auto chooseAdded = [choose](const AbsenceKind& kind) { choose(kind.id); };
    Q_EMIT popoverRequested(new OtherKind(m_parts.counting, chooseAdded, m_cell));
}
