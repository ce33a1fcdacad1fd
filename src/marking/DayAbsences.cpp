// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayAbsences.h"

#include "ModelContext.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>

namespace {

Q_LOGGING_CATEGORY(logAbsences, "pellory.marking", QtInfoMsg)

constexpr std::array programKinds{AbsenceKind::sick, AbsenceKind::businessTrip, AbsenceKind::clientVisit,
                                  AbsenceKind::training};

} // namespace

QList<AbsenceKind> DayAbsences::kinds() const
{
    QList<AbsenceKind> kinds;
    try {
        kinds = m_context.records<AbsenceKind>();
    } catch (const StoreError& error) {
        qCWarning(logAbsences, "The kinds of absence cannot be read: %s", error.what());
    }
    kinds.removeIf([](const AbsenceKind& kind) { return kind.isRemoved(); });
    for (const int id : programKinds) {
        if (std::ranges::find(kinds, id, &AbsenceKind::id) == kinds.end())
            kinds.append(AbsenceKind{.id = id});
    }
    std::ranges::sort(kinds, {}, &AbsenceKind::id);
    return kinds;
}

QString DayAbsences::describe(DayState state, int kind) const
{
    if (state != DayState::OUT_OF_OFFICE || kind == AbsenceKind::none)
        return description(state);
    const auto known = kinds();
    const auto found = std::ranges::find(known, kind, &AbsenceKind::id);
    return found == known.end() ? description(state) : describe(state, *found);
}

QString DayAbsences::describe(DayState state, const AbsenceKind& kind)
{
    return tr("%1 (%2)", "state and reason").arg(description(state), description(kind));
}

int DayAbsences::kindOf(QDate date) const
{
    try {
        return all().value(date, AbsenceKind::none);
    } catch (const StoreError& error) {
        qCWarning(logAbsences, "The absences cannot be read: %s", error.what());
        return AbsenceKind::none;
    }
}

const QHash<QDate, int>& DayAbsences::all() const
{
    if (!m_isRead) {
        for (const DayAbsence& absence : m_context.records<DayAbsence>())
            m_kinds.insert(absence.date, absence.kind);
        m_isRead = true;
    }
    return m_kinds;
}

void DayAbsences::set(const QMap<QDate, int>& kinds)
{
    QMap<QDate, int> others;
    for (const auto& [date, kind] : kinds.asKeyValueRange()) {
        const int before = kind == AbsenceKind::none ? kindOf(date) : all().value(date, AbsenceKind::none);
        if (before != kind)
            others.insert(date, kind);
    }
    if (others.isEmpty())
        return;
    auto stored = m_context.records<DayAbsence>(); // one of each date, unless the store holds duplicates
    stored.removeIf([&others](const DayAbsence& absence) { return !others.contains(absence.date); });
    QList<DayAbsence> added;
    for (const auto& [date, kind] : others.asKeyValueRange()) {
        if (kind != AbsenceKind::none)
            added.append({date, kind});
    }
    m_context.replace(stored, added);
    for (const auto& [date, kind] : others.asKeyValueRange()) {
        if (kind == AbsenceKind::none)
            m_kinds.remove(date);
        else
            m_kinds.insert(date, kind);
    }
}
