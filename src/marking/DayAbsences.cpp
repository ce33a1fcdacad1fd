// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayAbsences.h"

#include "ModelContext.h"
#include "StoreError.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(logAbsences, "pellory.marking", QtInfoMsg)

} // namespace

const QHash<QDate, int>& DayAbsences::all() const
{
    if (m_isRead)
        return m_kinds;
    try {
        for (const DayAbsence& absence : m_context.records<DayAbsence>())
            m_kinds.insert(absence.date, absence.kind);
        m_isRead = true;
    } catch (const StoreError& error) {
        qCWarning(logAbsences, "The kinds of absence cannot be read: %s", error.what());
    }
    return m_kinds;
}

void DayAbsences::set(QDate date, int kind)
{
    const int before = kindOf(date);
    if (before == kind)
        return;
    if (before != AbsenceKind::none)
        m_context.remove(DayAbsence{date, before});
    if (kind != AbsenceKind::none)
        m_context.add(DayAbsence{date, kind});
    if (kind == AbsenceKind::none)
        m_kinds.remove(date);
    else
        m_kinds.insert(date, kind);
}
