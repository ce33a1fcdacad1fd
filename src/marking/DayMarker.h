// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayAbsences.h"
#include "DayChange.h"
#include "DayNotes.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <optional>

class Clock;
class ModelContext;
class Month;

/// Who marks a day.
enum class MarkedBy {
    /// A click or a key: any day. It is on disk when mark() returns; a failed save keeps it in memory for the next one.
    Click,
    /// The menu of states: any day. It does not touch `isWorkday`, and is saved at the end of the turn.
    Menu,
    /// The automatic check: only unknown and planned days, and not what a person has taken back today. It is saved at
    /// the end of the turn.
    Check
};

/// What one group of changes did. Its days have changed together and are taken back together.
struct ChangedDays {
    /// The group in the store.
    qint64 group = 0;
    ChangedBy by = ChangedBy::Hand;
    /// In the order in which they changed, each once.
    QList<QDate> dates = {};
    /// Of the day that changed last.
    DayState state = DayState::UNKNOWN;
    int absenceKind = AbsenceKind::none;

    bool operator==(const ChangedDays&) const = default;
};

struct DayMark {
    QDate date;
    DayState state = DayState::UNKNOWN;
    /// Of a day out of office; a day in another state has none.
    int absenceKind = AbsenceKind::none;

    bool operator==(const DayMark&) const = default;
};

/// Who marked days in another store, when, and by which network.
using DayOrigins = QHash<QDate, DayChange>;

/// The only class that changes the days of stored months. Each change is also a DayChange, which is saved with it. A
/// month that is not stored, such as a sample, changes without one.
class DayMarker : public QObject {
    Q_OBJECT

public:
    DayMarker(ModelContext& context, const Clock& clock)
        : m_context(context)
        , m_clock(clock)
        , m_notes(context)
        , m_absences(context)
    {
    }

    [[nodiscard]] ModelContext& context() const { return m_context; }
    [[nodiscard]] DayNotes& notes() { return m_notes; }
    [[nodiscard]] const DayNotes& notes() const { return m_notes; }
    [[nodiscard]] const DayAbsences& absences() const { return m_absences; }

    /// The state of a cell. `index` is the day's place in the grid of its month, 0 to 37; any other stops the program.
    [[nodiscard]] static DayState stateOf(const Month& month, qsizetype index);

    /// Returns the group of the change, or 0 if nothing was recorded: the day is as it was, or its month is not stored.
    /// Changes of one day by hand, each within two seconds of the last, are one group. `network` is what a check found.
    qint64 mark(Month& month, qsizetype index, DayState state, MarkedBy by, const QString& network = {});

    /// Marks a day as out of office for a reason, or without one for AbsenceKind::none. It is saved at the end of the
    /// turn. Returns the group of the change, or 0 if nothing was recorded.
    qint64 markAbsence(Month& month, qsizetype index, int absenceKind);

    /// Marks several days, each of which is in the list once, as one group, and saves. Returns the group, or 0 if every
    /// day is as it was. `revertedGroup` is what an undo or redo takes back. Throws a StoreError, and changes nothing,
    /// if the store cannot be read.
    qint64 mark(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup = 0);

    /// Marks several days in the same way, each as the change that it has among `origins`, if any; the others are
    /// recorded as imported now.
    qint64 import(const QList<DayMark>& marks, const DayOrigins& origins);

    /// How a day is marked now; nothing if the month lacks the day.
    [[nodiscard]] std::optional<DayMark> markOn(const Month& month, QDate date) const;

    /// Whether a person has today taken back this mark of a check, and not marked the day since. A check does not set
    /// it again. False if the store cannot be read.
    [[nodiscard]] bool isTakenBack(QDate date, DayState state) const;

Q_SIGNALS:
    /// Days have changed. It is also emitted for each further change of a group that is still open.
    void changed(const ChangedDays& days);
    /// Kinds of absence have changed. It is emitted before changed().
    void absencesChanged();

private:
    qint64 markAll(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup, const DayOrigins& origins);
    qint64 apply(Month& month, qsizetype index, const DayMark& mark, MarkedBy by, const QString& network);
    [[nodiscard]] int absenceKindOf(QDate date, DayState state) const;
    /// False, with nothing changed, if the store cannot be read.
    bool setAbsence(QDate date, int kind);
    void record(DayChange change);
    [[nodiscard]] qint64 groupFor(QDate date, MarkedBy by) const;
    [[nodiscard]] qint64 newGroup() const;

    ModelContext& m_context;
    const Clock& m_clock;
    DayNotes m_notes;
    DayAbsences m_absences;
    /// The last change of a single day that was recorded. Its group is the last of all; 0 before the first.
    DayChange m_last;
};
