// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

/// One cell of a month's grid.
struct Day {
    /// The day of the month, 1 to 31; 0 or less for a cell that only fills the grid.
    qint64 id = 0;
    DayState state = DayState::UNKNOWN;
    /// Monday to Friday. Holidays are not known.
    bool isWorkday = false;

    [[nodiscard]] bool isInMonth() const { return id >= 1; }

    bool operator==(const Day&) const = default;
};
