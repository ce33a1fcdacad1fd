// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoHistory.h"

#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredMonths.h"

#include <QLoggingCategory>

#include <map>

namespace {

Q_LOGGING_CATEGORY(logUndo, "pellory.marking", QtInfoMsg)

template <class Action> auto logErrors(Action action) -> decltype(action())
{
    try {
        return action();
    } catch (const StoreError& error) {
        qCWarning(logUndo, "The changes of days cannot be read: %s", error.what());
    }
    return {};
}

} // namespace

bool UndoHistory::undo()
{
    return logErrors([this] {
        QSet<qint64> passedOver; // such as clicks through all states
        qint64 group = groupToUndo(passedOver);
        while (group != 0 && !revert(group)) {
            passedOver.insert(group);
            group = groupToUndo(passedOver);
        }
        return group != 0;
    });
}

bool UndoHistory::undo(qint64 group)
{
    return logErrors([=, this] { return revert(group); });
}

bool UndoHistory::redo()
{
    return logErrors([this] { return revert(groupToRedo()); });
}

QList<DayChange> UndoHistory::changesOf(QDate date) const
{
    return logErrors([&] {
        QList<DayChange> changes;
        m_marker.context().visitChanges(date, [&](const DayChange& change) {
            changes.append(change);
            return true;
        });
        return changes;
    });
}

qint64 UndoHistory::groupToUndo(const QSet<qint64>& passedOver) const
{
    qint64 found = 0;
    QSet<qint64> reverted = passedOver;
    m_marker.context().visitChanges([&](const DayChange& change) {
        if (reverted.contains(change.group))
            return true;
        if (change.revertedGroup == 0)
            found = change.group;
        else
            reverted.insert(change.revertedGroup);
        return found == 0;
    });
    return found;
}

qint64 UndoHistory::groupToRedo() const
{
    qint64 found = 0;
    QSet<qint64> redone;
    m_marker.context().visitChanges([&](const DayChange& change) {
        if (change.by == ChangedBy::Redo)
            redone.insert(change.revertedGroup);
        else if (!redone.contains(change.group)) {
            found = change.by == ChangedBy::Undo ? change.group : 0;
            return false;
        }
        return true;
    });
    return found;
}

bool UndoHistory::isInForce(QDate date, qint64 group) const
{
    bool isInForce = false;
    QSet<qint64> reverted;
    m_marker.context().visitChanges(date, [&](const DayChange& change) {
        const bool isReverted = reverted.contains(change.group);
        if (change.group == group) {
            isInForce = !isReverted;
            return false;
        }
        if (change.revertedGroup != 0 && !isReverted)
            reverted.insert(change.revertedGroup);
        return isReverted || change.revertedGroup != 0;
    });
    return isInForce;
}

bool UndoHistory::revert(qint64 group)
{
    if (group == 0)
        return false;
    struct Span {
        DayState before;
        DayState after;
    };
    std::map<QDate, Span> spans;
    auto by = ChangedBy::Undo;
    m_marker.context().visitChanges([&](const DayChange& change) {
        if (change.group == group) {
            // Backward, so that the last that is seen was the first.
            spans.try_emplace(change.date, change.before, change.after).first->second.before = change.before;
            if (change.by == ChangedBy::Undo)
                by = ChangedBy::Redo;
        }
        return change.group >= group;
    });
    QList<DayMark> marks;
    for (const auto& [date, span] : spans) {
        const auto month = firstOrNewMonth(m_marker.context(), date);
        if (isInForce(date, group) && DayMarker::stateOf(*month, *month->indexOf(date.day())) == span.after)
            marks.append({date, span.before});
    }
    return m_marker.mark(marks, by, group) != 0;
}
