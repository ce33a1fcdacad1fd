// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BackupContents.h"

/// A day that restoring a backup would change.
struct DayDifference {
    QDate date;
    DayState before = DayState::UNKNOWN;
    /// As in the backup. A day that was unknown there is unmarked.
    DayState after = DayState::UNKNOWN;
    /// The kinds of absence (see AbsenceKind). A backup from before there were kinds has none.
    int absenceBefore = 0;
    int absenceAfter = 0;

    bool operator==(const DayDifference&) const = default;
};

/// By date. Days of months that the backup does not hold stay as they are, so they are not among these; nor
/// are days that differ in their kind of absence only, if the backup does not know kinds.
[[nodiscard]] QList<DayDifference> differences(const DayStates& now, const DayStates& inBackup);
