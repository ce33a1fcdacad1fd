// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QSet>

class DayMarker;
struct DayChange;

/// Takes back what the marker has recorded, across restarts of the program. What it does is recorded like any change,
/// so nothing is ever lost. A day that was changed later is left as it is.
class UndoHistory {
public:
    explicit UndoHistory(DayMarker& marker)
        : m_marker(marker)
    {
    }

    /// Takes back the last group of changes that is in force. False if there is none.
    bool undo();
    /// Takes back one group, such as that of a notification. False if none of its days is as the group left it.
    bool undo(qint64 group);
    /// Takes back the last undo, unless something else was changed since. False if there is none.
    bool redo();

    /// The changes of a day, the newest first. Empty if the store cannot be read.
    [[nodiscard]] QList<DayChange> changesOf(QDate date) const;

private:
    [[nodiscard]] qint64 groupToUndo(const QSet<qint64>& passedOver) const;
    [[nodiscard]] qint64 groupToRedo() const;
    [[nodiscard]] bool isInForce(QDate date, qint64 group) const;
    bool revert(qint64 group);

    DayMarker& m_marker;
};
