// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QDate>
#include <QList>
#include <QMap>

#include <memory>

class Month;

/// The state of every day of the months that a store holds, unknown ones included. Of a month that is stored more than
/// once, the first record counts.
using DayStates = QMap<QDate, DayState>;

[[nodiscard]] DayStates statesOf(const QList<std::shared_ptr<Month>>& months);

/// Reads a backup of this or an earlier version of the store, after verifying all of it. Changes nothing, not even
/// beside the file. May be called on any thread. Throws a StoreError unless the backup is sound.
[[nodiscard]] DayStates readBackup(const QString& path);
