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

void setState(Month& month, QDate date, DayState state)
{
    QList<Day> days = month.days;
    days[*month.indexOf(date.day())].state = state;
    month.days = days;
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
    return apply(month, index, {{}, state}, by, network);
}

qint64 DayMarker::markAbsence(Month& month, qsizetype index, int absenceKind)
{
    return apply(month, index, {{}, DayState::OUT_OF_OFFICE, absenceKind}, MarkedBy::Menu, {});
}

qint64 DayMarker::apply(Month& month, qsizetype index, const DayMark& mark, MarkedBy by, const QString& network)
{
    const DayState before = stateOf(month, index);
    const DayState state = mark.state;
    const int absence = mark.absenceKind;
    QList<Day> days = month.days;
    Day& day = days[index];
    const QDate date = month.dateOf(day.id);
    if (by == MarkedBy::Check && (!isOpen(before) || isTakenBack(date, state)))
        return 0;
    const bool isStored = day.isInMonth() && m_context.contains(month);
    const int absenceBefore = isStored ? absenceKindOf(date, before) : AbsenceKind::none;
    const bool isRecorded = isStored && (before != state || absenceBefore != absence);
    if (isRecorded && !setAbsence(date, absence))
        return 0;
    day.state = state;
    if (by != MarkedBy::Menu)
        day.isWorkday = month.isWorkday(day.id);
    month.days = days;
    const qint64 group = isRecorded ? groupFor(date, by) : 0;
    if (isRecorded)
        record({.date = date,
                .before = before,
                .after = state,
                .by = changedBy(by),
                .group = group,
                .network = network,
                .absenceBefore = absenceBefore,
                .absenceAfter = absence});
    if (by == MarkedBy::Click)
        m_context.save();
    if (absenceBefore != absence && isRecorded)
        Q_EMIT absencesChanged();
    if (isRecorded)
        Q_EMIT changed({group, changedBy(by), {date}, state, absence});
    return group;
}

qint64 DayMarker::mark(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup)
{
    return markAll(marks, by, revertedGroup, {});
}

qint64 DayMarker::import(const QList<DayMark>& marks, const DayOrigins& origins)
{
    return markAll(marks, ChangedBy::Import, 0, origins);
}

qint64 DayMarker::markAll(const QList<DayMark>& marks, ChangedBy by, qint64 revertedGroup, const DayOrigins& origins)
{
    // Everything is read before anything changes.
    if (std::ranges::any_of(marks, [](const DayMark& mark) { return mark.absenceKind != AbsenceKind::none; }))
        static_cast<void>(m_absences.all());
    std::map<QDate, std::shared_ptr<Month>> months;
    for (const DayMark& mark : marks) {
        auto& month = months[firstOfMonth(mark.date)];
        if (!month)
            month = storedMonth(m_context, mark.date);
        if (!month)
            month = std::make_shared<Month>(mark.date.year(), mark.date.month());
    }
    QList<std::pair<DayMark, DayMark>> differing; // as they are, and as they are to be
    QMap<QDate, int> absences;
    bool hasOtherAbsences = false;
    for (const DayMark& mark : marks) {
        const auto before = markOn(*months.at(firstOfMonth(mark.date)), mark.date);
        if (!before || *before == mark)
            continue;
        differing.append({*before, mark});
        absences.insert(mark.date, mark.absenceKind);
        hasOtherAbsences |= before->absenceKind != mark.absenceKind;
    }
    m_absences.set(absences);
    ChangedDays result{.group = newGroup(), .by = by};
    for (const auto& [before, mark] : differing) {
        const auto& month = months.at(firstOfMonth(mark.date));
        setState(*month, mark.date, mark.state);
        m_context.insert(month);
        const auto origin = origins.constFind(mark.date);
        const bool isKnown = origin != origins.constEnd();
        record({.time = isKnown ? origin->time : 0,
                .date = mark.date,
                .before = before.state,
                .after = mark.state,
                .by = isKnown ? origin->by : by,
                .group = result.group,
                .revertedGroup = revertedGroup,
                .network = isKnown ? origin->network : QString(),
                .absenceBefore = before.absenceKind,
                .absenceAfter = mark.absenceKind});
        result.dates.append(mark.date);
        result.state = mark.state;
        result.absenceKind = mark.absenceKind;
    }
    if (result.dates.isEmpty())
        return 0;
    m_last.date = {}; // no click continues this group
    m_context.save();
    if (hasOtherAbsences)
        Q_EMIT absencesChanged();
    Q_EMIT changed(result);
    return result.group;
}

std::optional<DayMark> DayMarker::markOn(const Month& month, QDate date) const
{
    const auto index = month.indexOf(date.day());
    if (!index)
        return {};
    const DayState state = stateOf(month, *index);
    return DayMark{date, state, absenceKindOf(date, state)};
}

int DayMarker::absenceKindOf(QDate date, DayState state) const
{
    return state == DayState::OUT_OF_OFFICE ? m_absences.kindOf(date) : AbsenceKind::none;
}

bool DayMarker::setAbsence(QDate date, int kind)
{
    try {
        m_absences.set({{date, kind}});
        return true;
    } catch (const StoreError& error) {
        qCWarning(logMarking, "The kind of an absence cannot be stored: %s", error.what());
        return false;
    }
}

void DayMarker::record(DayChange change)
{
    if (change.time == 0)
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
