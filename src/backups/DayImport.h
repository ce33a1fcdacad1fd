// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayDifference.h"
#include "DayMarker.h"
#include "DayRecord.h"

#include <QHash>
#include <QList>

class CountingRecords;

/// What importing a list of days would do. A list only adds: what it does not say stays as it is, and so do notes and
/// days off that are here already. Days that are marked otherwise here are conflicts, for the person to decide.
class DayImport {
public:
    /// Compares the list, which has each date once and in order, with what is stored. `kinds` are the own kinds of
    /// absence in the list. Throws a StoreError if the store cannot be read.
    DayImport(const QList<DayRecord>& days, const QList<AbsenceKind>& kinds, DayMarker& marker,
              CountingRecords& counting);

    /// Days that are unknown here.
    [[nodiscard]] const QList<DayDifference>& newDays() const { return m_newDays; }
    [[nodiscard]] const QList<DayDifference>& conflicts() const { return m_conflicts; }
    /// How many days are marked as in the list.
    [[nodiscard]] qsizetype sameCount() const { return m_sameCount; }
    [[nodiscard]] const QHash<QDate, QString>& notes() const { return m_notes; }
    [[nodiscard]] const QList<DayOff>& daysOff() const { return m_daysOff; }
    /// Whether some of the days have a kind of absence that is not here yet.
    [[nodiscard]] bool hasNewKinds() const;
    /// How many notes and days off are left out, as there are others on their days.
    [[nodiscard]] qsizetype keptCount() const { return m_keptCount; }

    /// A state with a kind of absence, in words.
    [[nodiscard]] QString describe(DayState state, int kind) const;

    /// Marks the given days, which are from newDays() and conflicts(), as one undo step, and adds notes and days off
    /// where these are chosen. Returns the step; 0 if no day changes. Throws a StoreError if the store cannot be read.
    [[nodiscard]] qint64 apply(const QList<DayDifference>& days, bool withNotes, bool withDaysOff) const;

private:
    void compare(const DayRecord& listed, const DayRecord& present);
    void compareState(const DayRecord& listed, const DayRecord& present);
    [[nodiscard]] int provisionalKind(int listedKind);
    /// The kind in the store, which is added if there is none.
    [[nodiscard]] int storedKind(int provisional) const;

    DayMarker& m_marker;
    CountingRecords& m_counting;
    /// The own kinds of the list. Those that are not in the store yet have numbers that no stored kind has.
    QList<AbsenceKind> m_kinds;
    QList<DayDifference> m_newDays;
    QList<DayDifference> m_conflicts;
    QHash<QDate, QString> m_notes;
    QList<DayOff> m_daysOff;
    DayOrigins m_origins;
    qsizetype m_sameCount = 0;
    qsizetype m_keptCount = 0;
};
