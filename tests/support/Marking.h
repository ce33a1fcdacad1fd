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

/// Makes one mark of an endless sequence that changes the same days again and again.
inline void makeSequencedMark(Month& month, int number)
{
    mark(month, 1 + number % 28, allDayStates.at(static_cast<std::size_t>(1 + number) % allDayStates.size()));
}
