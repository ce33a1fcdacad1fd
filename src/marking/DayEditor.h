// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

class ModelContext;
class Month;

/// The changes that a person makes to a day by hand. `index` is the day's place in the grid of its month, 0 to 37; any
/// other stops the program. Each click operation ends with a save; a save that fails keeps the change in memory.
class DayEditor {
public:
    explicit DayEditor(ModelContext& context);

    /// On to the next state; after the last comes the first.
    void cycleDayState(Month& month, qsizetype index);
    /// Back to unknown.
    void resetDayState(Month& month, qsizetype index);
    /// To "will be in office", or back to unknown from there.
    void toggleWillBeInOffice(Month& month, qsizetype index);
    /// To "vacation day", or back to unknown from there.
    void toggleVacationDay(Month& month, qsizetype index);

    /// Sets a state that was picked. The context saves it by itself.
    static void setDayState(Month& month, qsizetype index, DayState state);

private:
    void write(Month& month, qsizetype index, DayState state);

    ModelContext& m_context;
};
