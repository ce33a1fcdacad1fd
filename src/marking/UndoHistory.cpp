// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoHistory.h"

#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredMonths.h"

#include <QLoggingCategory>

#include <map>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(logUndo, "pellory.marking", QtInfoMsg)

// An undo that was imported takes back nothing here.
bool isReversal(const DayChange& change, ChangedBy by)
{
    return change.by == by && change.revertedGroup != 0;
}

template <class Action> auto logErrors(Action action) -> decltype(action())
{
    try {
        return action();
    } catch (const StoreError& error) {
        qCWarning(logUndo, "The changes of days cannot be read: %s", error.what());
    }
    return {};
}

/// Which changes have been taken back, as far as the changes have been read, the newest first.
class Reversals {
public:
    [[nodiscard]] bool contains(const DayChange& change) const
    {
        return m_reverted.contains({change.group, change.date});
    }

    /// Returns whether the change has been taken back, or takes another back.
    bool include(const DayChange& change)
    {
        if (contains(change))
            return true;
        if (change.revertedGroup != 0)
            m_reverted.insert({change.revertedGroup, change.date});
        return change.revertedGroup != 0;
    }

private:
    QSet<std::pair<qint64, QDate>> m_reverted;
};

} // namespace

/// A group of changes, as far as it can be taken back.
struct UndoHistory::UndoStep {
    struct Span {
        DayMark before;
        DayMark after;
    };

    qint64 group = 0;
    bool isUndo = false;
    std::map<QDate, Span> spans = {};

    /// Must be called for the newest change first.
    void add(const DayChange& change)
    {
        const DayMark before{change.date, change.before, change.absenceBefore};
        const DayMark after{change.date, change.after, change.absenceAfter};
        spans.try_emplace(change.date, Span{before, after}).first->second.before = before;
        isUndo = isReversal(change, ChangedBy::Undo);
    }
};

// What cannot be taken back, such as clicks through all states, is passed over.
bool UndoHistory::undo()
{
    UndoStep step;
    Reversals reversals;
    m_marker.context().visitChanges([&](const DayChange& change) {
        if (reversals.include(change))
            return true;
        if (change.group != step.group) {
            if (!marksOf(step).isEmpty())
                return false;
            step = {.group = change.group};
        }
        step.add(change);
        return true;
    });
    return take(step);
}

bool UndoHistory::undo(qint64 group)
{
    return undo(group, [](QDate) { return true; });
}

bool UndoHistory::undo(qint64 group, const std::function<bool(QDate)>& isWanted)
{
    UndoStep step{.group = group};
    Reversals reversals;
    QSet<QDate> changedLater;
    m_marker.context().visitChanges([&](const DayChange& change) {
        const bool isInForce = !reversals.contains(change) && !changedLater.contains(change.date);
        if (change.group == group && isInForce && isWanted(change.date))
            step.add(change);
        else if (change.group != group && !reversals.include(change))
            changedLater.insert(change.date);
        return change.group >= group;
    });
    return take(step);
}

bool UndoHistory::undoCheck(QDate date, DayState before)
{
    return logErrors([&, this] {
        qint64 check = 0;
        Reversals reversals;
        m_marker.context().visitChanges(date, [&](const DayChange& change) {
            if (reversals.include(change))
                return true;
            if (change.by == ChangedBy::Check && change.before == before)
                check = change.group;
            return false;
        });
        // An import has other days in the same group.
        return check != 0 && undo(check, [date](QDate each) { return each == date; });
    });
}

bool UndoHistory::redo()
{
    const qint64 group = groupToRedo();
    return group != 0 && undo(group);
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

qint64 UndoHistory::groupToRedo() const
{
    qint64 found = 0;
    QSet<qint64> redone;
    m_marker.context().visitChanges([&](const DayChange& change) {
        if (isReversal(change, ChangedBy::Redo))
            redone.insert(change.revertedGroup);
        else if (!redone.contains(change.group)) {
            found = isReversal(change, ChangedBy::Undo) ? change.group : 0;
            return false;
        }
        return true;
    });
    return found;
}

QList<DayMark> UndoHistory::marksOf(const UndoStep& step) const
{
    QList<DayMark> marks;
    for (const auto& [date, span] : step.spans) {
        if (span.before != span.after && markOn(date) == span.after)
            marks.append(span.before);
    }
    return marks;
}

DayMark UndoHistory::markOn(QDate date) const
{
    const auto month = storedMonth(m_marker.context(), date);
    const auto mark = month ? m_marker.markOn(*month, date) : std::nullopt;
    return mark.value_or(DayMark{date});
}

bool UndoHistory::take(const UndoStep& step)
{
    const auto by = step.isUndo ? ChangedBy::Redo : ChangedBy::Undo;
    return m_marker.mark(marksOf(step), by, step.group) != 0;
}
