// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QDate>

/// Who changed a day. The numbers are stored and never change.
enum class ChangedBy { Hand = 1, Check = 2, Undo = 3, Redo = 4, Restore = 5, Pattern = 6, Import = 7 };

/// One change of one day. It never changes itself.
struct DayChange {
    /// When it was made, in milliseconds since 1970 in UTC.
    qint64 time = 0;
    QDate date;
    DayState before = DayState::UNKNOWN;
    DayState after = DayState::UNKNOWN;
    ChangedBy by = ChangedBy::Hand;
    /// What is taken back together. Later groups have greater numbers, all above 0.
    qint64 group = 0;
    /// The group that an undo takes back, or the undo that a redo takes back; otherwise 0.
    qint64 revertedGroup = 0;
    /// The office network that a check found; otherwise empty.
    QString network = {};
    /// The kinds of absence before and after (see AbsenceKind); 0 for none.
    int absenceBefore = 0;
    int absenceAfter = 0;

    bool operator==(const DayChange&) const = default;
};
