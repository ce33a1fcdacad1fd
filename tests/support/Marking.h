// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Month.h"

/// Sets the state of a cell as a click does.
inline void mark(Month& month, int dayId, DayState state)
{
    QList<Day> days = month.days;
    for (Day& day : days) {
        if (day.id == dayId)
            day.state = state;
    }
    month.days = days;
}
