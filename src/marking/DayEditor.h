// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayMarker.h"

/// What a person can do to a day by hand. `index` is the day's place in the grid of its month, 0 to 37; any other stops
/// the program. A click operation ends with a save; if that fails, the change stays in memory.
class DayEditor {
public:
    explicit DayEditor(DayMarker& marker)
        : m_marker(marker)
    {
    }

    /// Sets the next state; after the last comes the first.
    void cycleDayState(Month& month, qsizetype index);
    /// Sets the state to unknown.
    void resetDayState(Month& month, qsizetype index);
    /// Sets "will be in office", or unknown if that is the state already.
    void toggleWillBeInOffice(Month& month, qsizetype index);
    /// Sets "vacation day", or unknown if that is the state already.
    void toggleVacationDay(Month& month, qsizetype index);

    /// Sets a state that was picked from the menu. It is saved at the end of the turn.
    void setDayState(Month& month, qsizetype index, DayState state);
    /// Sets several days as one change, and saves. Nothing changes if the store cannot be read.
    void setDays(const QList<QDate>& dates, DayState state, int absenceKind = AbsenceKind::none);

private:
    void toggle(Month& month, qsizetype index, DayState state);

    DayMarker& m_marker;
};
