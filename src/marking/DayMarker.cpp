// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayMarker.h"

#include "Clock.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredMonths.h"

#include <QDateTime>
#include <QHash>
#include <QLoggingCategory>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(logMarking, "pellory.marking", QtInfoMsg)

// For how long a group is open to the next change of its day, in milliseconds.
constexpr qint64 groupTime = 2000;

bool isOpen(DayState state)
{
    return state == DayState::UNKNOWN || state == DayState::WILL_BE_IN_OFFICE;
}

ChangedBy changedBy(MarkedBy by)
{
    return by == MarkedBy::Check ? ChangedBy::Check : ChangedBy::Hand;
}

QDate firstOfMonth(QDate date)
{
    return {date.year(), date.month(), 1};
}

/// Returns the earlier state, or nothing if the day has this state already or the month lacks the day.
std::optional<DayState> setState(Month& month, QDate date, DayState state)
{
    const auto index = month.indexOf(date.day());
    if (!index || DayMarker::stateOf(month, *index) == state)
        return {};
    QList<Day> days = month.days;
    const DayState before = std::exchange(days[*index].state, state);
    month.days = days;
    return before;
}

} // namespace

DayState DayMarker::stateOf(const Month& month, qsizetype index)
{
    const auto& days = month.days.value();
    if (index < 0 || index >= days.size())
        qFatal("A month has no cell %lld", static_cast<long long>(index));
    return days.at(index).state;
}

qint64 DayMarker::mark(Month& month, qsizetype index, DayState state, MarkedBy by, const QString& network)
{
    const DayState before = stateOf(month, index);
    QList<Day> days = month.days;
    Day& day = days[index];
    const QDate date = month.dateOf(day.id);
    if (by == MarkedBy::Check && (!isOpen(before) || isTakenBack(date, state)))
        return 0;
    const bool isRecorded = before != state && day.isInMonth() && m_context.contains(month);
    day.state = state;
    if (by != MarkedBy::Menu)
        day.isWorkday = month.isWorkday(day.id);
    month.days = days;
    const qint64 group = isRecorded ? groupFor(date, by) : 0;
    if (isRecorded)
        record(
            {.date = date, .before = before, .after = state, .by = changedBy(by), .group = group, .network = network});
    if (by == MarkedBy::Click)
        m_context.save();
    if (isRecorded)
        Q_EMIT changed({group, changedBy(by), {date}, state});
    return group;
}

qint64 DayMarker::mark(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup)
{
    // Everything is read before anything changes.
    std::map<QDate, std::shared_ptr<Month>> months;
    for (const DayMark& mark : marks) {
        auto& month = months[firstOfMonth(mark.date)];
        if (!month)
            month = storedMonth(m_context, mark.date);
        if (!month)
            month = std::make_shared<Month>(mark.date.year(), mark.date.month());
    }
    ChangedDays result{.group = newGroup(), .by = by};
    for (const auto& [date, state] : marks) {
        const auto& month = months.at(firstOfMonth(date));
        const auto before = setState(*month, date, state);
        if (!before)
            continue;
        m_context.insert(month);
        record({.date = date,
                .before = *before,
                .after = state,
                .by = by,
                .group = result.group,
                .revertedGroup = revertedGroup});
        result.dates.append(date);
        result.state = state;
    }
    if (result.dates.isEmpty())
        return 0;
    m_last.date = {}; // no click continues this group
    m_context.save();
    Q_EMIT changed(result);
    return result.group;
}

void DayMarker::record(DayChange change)
{
    change.time = m_clock.now().toMSecsSinceEpoch();
    m_context.append(change);
    m_last = change;
}

qint64 DayMarker::groupFor(QDate date, MarkedBy by) const
{
    const qint64 elapsed = m_clock.now().toMSecsSinceEpoch() - m_last.time;
    const bool continues = by != MarkedBy::Check && m_last.by == ChangedBy::Hand && m_last.date == date &&
                           elapsed >= 0 && elapsed <= groupTime;
    return continues ? m_last.group : newGroup();
}

qint64 DayMarker::newGroup() const
{
    qint64 last = m_last.group;
    try {
        m_context.visitChanges([&](const DayChange& newest) {
            last = std::max(last, newest.group);
            return false;
        });
    } catch (const StoreError& error) {
        qCWarning(logMarking, "The last change cannot be read: %s", error.what());
        last = std::max(last, m_clock.now().toMSecsSinceEpoch()); // which is greater than any number that is counted
    }
    return last + 1;
}

bool DayMarker::isTakenBack(QDate date, DayState state) const
{
    bool isTakenBack = false;
    QHash<qint64, bool> reverted; // groups, and whether it was an undo of today
    try {
        m_context.visitChanges(date, [&](const DayChange& change) {
            if (const auto found = reverted.constFind(change.group); found != reverted.constEnd()) {
                isTakenBack = *found && change.by == ChangedBy::Check && change.after == state;
                return !isTakenBack;
            }
            const auto day = QDateTime::fromMSecsSinceEpoch(change.time).date();
            reverted.insert(change.revertedGroup, change.by == ChangedBy::Undo && day == m_clock.today());
            return change.revertedGroup != 0;
        });
    } catch (const StoreError& error) {
        qCWarning(logMarking, "What was taken back cannot be read: %s", error.what());
    }
    return isTakenBack;
}
