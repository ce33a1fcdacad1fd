// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayDifference.h"

QList<DayDifference> differences(const DayStates& now, const DayStates& inBackup)
{
    QList<DayDifference> days;
    for (auto day = inBackup.begin(); day != inBackup.end(); ++day) {
        const DayState before = now.value(day.key(), DayState::UNKNOWN);
        if (before != day.value())
            days.append({day.key(), before, day.value()});
    }
    return days;
}
