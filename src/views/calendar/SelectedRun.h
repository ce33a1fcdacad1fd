// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Whether a day is selected, and with it the days before and after it in its row.
struct SelectedRun {
    bool isSelected = false;
    bool hasPrevious = false;
    bool hasNext = false;

    bool operator==(const SelectedRun&) const = default;
};
