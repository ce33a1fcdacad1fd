// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayRecords.h"

#include "DayAbsences.h"
#include "DayMarker.h"
#include "DayNote.h"
#include "DayNotes.h"
#include "ModelContext.h"
#include "Month.h"
#include "Period.h"

#include <QSet>

#include <map>

namespace {

using RecordsByDate = std::map<QDate, DayRecord>;

DayRecord& recordOn(RecordsByDate& records, QDate date)
{
    DayRecord& record = records[date];
    record.date = date;
    return record;
}

void addStates(RecordsByDate& records, const DayMarker& marker, DaySpan span)
{
    const QHash<QDate, int>& absences = marker.absences().all();
    for (const auto& month : marker.context().fetchMonths(span.first, span.last)) {
        for (const Day& day : month->days.value()) {
            const QDate date = month->dateOf(day.id);
            if (!day.isInMonth() || day.state == DayState::UNKNOWN || !span.contains(date))
                continue;
            DayRecord& record = recordOn(records, date);
            record.state = day.state;
            if (day.state == DayState::OUT_OF_OFFICE)
                record.absenceKind = absences.value(date, AbsenceKind::none);
        }
    }
}

// A change that does not lead to what is stored says nothing about it.
void addLastChanges(RecordsByDate& records, ModelContext& context)
{
    QSet<QDate> seen;
    context.visitChanges([&](const DayChange& change) {
        const auto record = records.find(change.date);
        if (record == records.end() || seen.contains(change.date))
            return true;
        seen.insert(change.date);
        if (change.after == record->second.state && change.absenceAfter == record->second.absenceKind)
            record->second.lastChange = change;
        return true;
    });
}

} // namespace

DaySpan wholeCalendar()
{
    return {QDate(firstYear, 1, 1), QDate(lastYear, 12, 31)};
}

QList<DayRecord> dayRecords(const DayMarker& marker, DaySpan span)
{
    if (span.isEmpty())
        return {};
    RecordsByDate records;
    addStates(records, marker, span);
    for (const auto& note : marker.notes().between(span.first, span.last))
        recordOn(records, note->date).note = note->text;
    for (const DayOff& dayOff : marker.context().records<DayOff>()) {
        if (span.contains(dayOff.date))
            recordOn(records, dayOff.date).dayOff = dayOff;
    }
    addLastChanges(records, marker.context());

    QList<DayRecord> list;
    list.reserve(static_cast<qsizetype>(records.size()));
    for (const auto& [date, record] : records)
        list.append(record);
    return list;
}
