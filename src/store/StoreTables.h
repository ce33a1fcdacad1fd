// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayChangeLog.h"
#include "RecordFields.h"
#include "RecordTable.h"
#include "RowSet.h"

/// The records of every kind, as parts of one store.
struct StoreTables {
    /// `storedGoals` returns the goals that settings can name.
    StoreTables(SQLite::Database& database, const std::function<void()>& changed,
                const std::function<AppSettings::Goals()>& storedGoals);

    RecordTable<Month> months;
    RecordTable<Goal> goals;
    RecordTable<AppSettings> settings;
    RecordTable<DayNote> notes;
    DayChangeLog changes;
    std::vector<RowSet> small;

    /// One of `small`.
    [[nodiscard]] RowSet& rowsOf(const std::string& table);

    /// Adds the goals that settings list, and removes all others.
    void matchGoalsToLists();

    [[nodiscard]] bool hasChanges() const;
    /// Must be called in a transaction, and followed by markSaved() after its commit.
    void write();
    void markSaved();
    /// Replaces what another store holds of the same months, days and settings by the records in memory, in one
    /// transaction. Must be followed by markAllSaved() once the result is the store.
    void writeAll(SQLite::Database& database);
    void markAllSaved();
    /// Releases the connection, so that it can be replaced.
    void release();
};
