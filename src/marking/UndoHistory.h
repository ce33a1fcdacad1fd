// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>

#include <functional>

class DayMarker;
enum class DayState;
struct DayChange;
struct DayMark;

/// Takes back what the marker has recorded, across restarts of the program. What it does is recorded like any change,
/// so nothing is ever lost. A day that was changed later is left as it is.
class UndoHistory {
public:
    explicit UndoHistory(DayMarker& marker)
        : m_marker(marker)
    {
    }

    /// Takes back the last group of changes that is in force. False if there is none. Throws a StoreError if the store
    /// cannot be read.
    bool undo();
    /// Takes back one group, such as that of a notification. False if none of its days is as the group left it. Throws
    /// a StoreError if the store cannot be read.
    bool undo(qint64 group);
    /// Takes back the last undo, unless something else was changed since. False if there is none. Throws a StoreError
    /// if the store cannot be read.
    bool redo();
    /// Takes back the mark of a check that is in force on a day, and no other day. False if there is none, the day was
    /// not in the state `before` it, or the store cannot be read.
    bool undoCheck(QDate date, DayState before);

    /// The changes of a day, the newest first. Empty if the store cannot be read.
    [[nodiscard]] QList<DayChange> changesOf(QDate date) const;

private:
    struct UndoStep;

    bool undo(qint64 group, const std::function<bool(QDate)>& isWanted);
    [[nodiscard]] qint64 groupToRedo() const;
    /// What takes the step back, on those days that are as it left them.
    [[nodiscard]] QList<DayMark> marksOf(const UndoStep& step) const;
    [[nodiscard]] DayMark markOn(QDate date) const;
    bool take(const UndoStep& step);

    DayMarker& m_marker;
};
