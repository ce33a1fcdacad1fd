// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayMarker.h"

#include "Clock.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredMonths.h"

#include <QLoggingCategory>

#include <map>
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
    const QDate date = month.dateOf(month.days.value().at(index).id);
    if (by == MarkedBy::Check && (!isOpen(before) || isTakenBack(date, state)))
        return 0;
    QList<Day> days = month.days;
    Day& day = days[index];
    day.state = state;
    if (by != MarkedBy::Menu)
        day.isWorkday = month.isWorkday(day.id);
    month.days = days;
    qint64 group = 0;
    if (before != state && m_context.contains(month)) {
        group = groupFor(date, by);
        record(
            {.date = date, .before = before, .after = state, .by = changedBy(by), .group = group, .network = network});
    }
    if (by == MarkedBy::Click)
        m_context.save();
    if (group != 0)
        Q_EMIT changed({group, changedBy(by), {date}, state});
    return group;
}

qint64 DayMarker::mark(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup)
{
    struct Change {
        std::shared_ptr<Month> month;
        QList<Day> days;
    };
    // Everything is read before anything changes.
    std::map<QDate, Change> months;
    for (const DayMark& mark : marks) {
        Change& change = months[QDate(mark.date.year(), mark.date.month(), 1)];
        if (!change.month) {
            change.month = firstOrNewMonth(m_context, mark.date);
            change.days = change.month->days;
        }
    }
    ChangedDays result{.group = newGroup(), .by = by};
    for (const auto& [date, state] : marks) {
        Change& change = months.at(QDate(date.year(), date.month(), 1));
        Day& day = change.days[*change.month->indexOf(date.day())];
        const DayState before = std::exchange(day.state, state);
        if (before == state)
            continue;
        record({.date = date,
                .before = before,
                .after = state,
                .by = by,
                .group = result.group,
                .revertedGroup = revertedGroup});
        result.dates.append(date);
        result.state = state;
    }
    if (result.dates.isEmpty())
        return 0;
    for (const auto& entry : months)
        entry.second.month->days = entry.second.days;
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
    qint64 last = 0;
    try {
        m_context.visitChanges([&](const DayChange& newest) {
            last = newest.group;
            return false;
        });
    } catch (const StoreError& error) {
        qCWarning(logMarking, "The last change cannot be read: %s", error.what());
        last = m_clock.now().toMSecsSinceEpoch(); // greater than any number that is counted
    }
    return last + 1;
}

bool DayMarker::isTakenBack(QDate date, DayState state) const
{
    qint64 takenBack = 0;
    bool isMarkOfCheck = false;
    m_context.visitChanges(date, [&](const DayChange& change) {
        if (takenBack == 0) {
            const bool isToday = QDateTime::fromMSecsSinceEpoch(change.time).date() == m_clock.today();
            takenBack = change.revertedGroup;
            return change.by == ChangedBy::Undo && change.before == state && isToday;
        }
        isMarkOfCheck = change.group == takenBack && change.by == ChangedBy::Check;
        return change.group != takenBack;
    });
    return isMarkOfCheck;
}
