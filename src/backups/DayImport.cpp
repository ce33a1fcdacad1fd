// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayImport.h"

#include "CountingRecords.h"
#include "DayRecords.h"
#include "ModelContext.h"
#include "StoreError.h"

#include <algorithm>

namespace {

constexpr int firstProvisional = 1'000'000;

} // namespace

DayImport::DayImport(const QList<DayRecord>& days, const QList<AbsenceKind>& kinds, DayMarker& marker,
                     CountingRecords& counting)
    : m_marker(marker)
    , m_counting(counting)
    , m_kinds(kinds)
{
    if (days.isEmpty())
        return;
    QHash<QDate, DayRecord> present;
    for (const DayRecord& day : dayRecords(marker, {days.first().date, days.last().date}))
        present.insert(day.date, day);
    for (const DayRecord& day : days)
        compare(day, present.value(day.date));
}

void DayImport::compare(const DayRecord& listed, const DayRecord& present)
{
    if (listed.state != DayState::UNKNOWN)
        compareState(listed, present);
    if (!listed.note.trimmed().isEmpty()) {
        if (present.note.isEmpty())
            m_notes.insert(listed.date, listed.note);
        else
            m_keptCount += listed.note == present.note ? 0 : 1;
    }
    if (listed.dayOff) {
        if (!present.dayOff)
            m_daysOff.append(*listed.dayOff);
        else
            m_keptCount += listed.dayOff->name == present.dayOff->name ? 0 : 1;
    }
}

void DayImport::compareState(const DayRecord& listed, const DayRecord& present)
{
    const int kind = provisionalKind(listed.absenceKind);
    const DayDifference day{listed.date, present.state, listed.state, present.absenceKind, kind};
    if (listed.lastChange)
        m_origins.insert(listed.date, *listed.lastChange);
    if (present.state == DayState::UNKNOWN)
        m_newDays.append(day);
    else if (present.state != listed.state || (kind != AbsenceKind::none && kind != present.absenceKind))
        m_conflicts.append(day);
    else
        ++m_sameCount;
}

int DayImport::provisionalKind(int listedKind)
{
    const auto kind = std::ranges::find(m_kinds, listedKind, &AbsenceKind::id);
    if (kind == m_kinds.end())
        return listedKind;
    for (const AbsenceKind& stored : m_counting.absenceKinds()) {
        if (description(stored).compare(kind->name, Qt::CaseInsensitive) == 0)
            return stored.id;
    }
    return firstProvisional + listedKind;
}

int DayImport::storedKind(int provisional) const
{
    const auto kind = std::ranges::find(m_kinds, provisional - firstProvisional, &AbsenceKind::id);
    if (kind == m_kinds.end())
        return provisional;
    const auto stored = m_counting.addAbsenceKind(kind->name);
    if (!stored)
        return AbsenceKind::none;
    if (stored->treatment != kind->treatment)
        m_counting.setTreatment(stored->id, kind->treatment);
    return stored->id;
}

bool DayImport::hasNewKinds() const
{
    const auto isNew = [](const DayDifference& day) { return day.absenceAfter >= firstProvisional; };
    return std::ranges::any_of(m_newDays, isNew) || std::ranges::any_of(m_conflicts, isNew);
}

QString DayImport::describe(DayState state, int kind) const
{
    const auto listed = std::ranges::find(m_kinds, kind - firstProvisional, &AbsenceKind::id);
    return listed == m_kinds.end() ? m_marker.absences().describe(state, kind) : DayAbsences::describe(state, *listed);
}

qint64 DayImport::apply(const QList<DayDifference>& days, bool withNotes, bool withDaysOff) const
{
    QHash<int, int> kinds;
    QList<DayMark> marks;
    for (const DayDifference& day : days) {
        if (!kinds.contains(day.absenceAfter))
            kinds.insert(day.absenceAfter, storedKind(day.absenceAfter));
        marks.append({day.date, day.after, kinds.value(day.absenceAfter)});
    }
    if (withNotes)
        m_marker.notes().add(m_notes);
    const qint64 group = m_marker.import(marks, m_origins);
    if (withDaysOff && !m_daysOff.isEmpty() && !m_counting.addDaysOff(m_daysOff))
        throw StoreError(StoreError::tr("The days off cannot be stored."), StoreError::Cause::Obstacle);
    m_marker.context().save();
    return group;
}
