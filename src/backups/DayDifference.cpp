// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayDifference.h"

QList<DayDifference> differences(const DayStates& now, const DayStates& inBackup)
{
    QList<DayDifference> days;
    for (auto day = inBackup.begin(); day != inBackup.end(); ++day) {
        const StoredDay before = now.value(day.key());
        const bool hasOtherKind = day->absenceKind && day->absenceKind != before.absenceKind;
        if (before.state != day->state || hasOtherKind)
            days.append(
                {day.key(), before.state, day->state, before.absenceKind.value_or(0), day->absenceKind.value_or(0)});
    }
    return days;
}
