// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QDate>
#include <QMap>

#include <optional>
#include <stop_token>

class QString;

struct StoredDay {
    DayState state = DayState::UNKNOWN;
    /// See AbsenceKind. Of a day out of office it is not known in a backup from before there were kinds.
    std::optional<int> absenceKind = 0;

    bool operator==(const StoredDay&) const = default;
};

/// Every day of the months that a store holds, unknown ones included. Of a month that is stored more than once, the
/// first record counts.
using DayStates = QMap<QDate, StoredDay>;

/// Reads the days of a store of this version that was opened already, without locks. Changes that are not saved are not
/// in it. May be called on any thread. Throws a StoreError if it cannot be read, with the cause Lock if it is written
/// all the while.
[[nodiscard]] DayStates readStore(const QString& path, const std::stop_token& stop = {});

/// Reads a backup of this or an earlier version of the store, after verifying all of it. Changes nothing, not even
/// beside the file. May be called on any thread. Throws a StoreError unless the backup is sound.
[[nodiscard]] DayStates readBackup(const QString& path);
