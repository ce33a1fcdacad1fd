// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Row.h"

#include <functional>
#include <optional>
#include <vector>

namespace SQLite {
class Database;
}

/// The rows of a small table. They are read at first use and then kept in memory. A row never changes: another takes
/// its place.
class RowSet {
public:
    RowSet(SQLite::Database& database, TableLayout layout, std::function<void()> changed)
        : m_database(database)
        , m_layout(std::move(layout))
        , m_changed(std::move(changed))
    {
    }

    /// In the order in which they were added. Throws a StoreError, or the database's own exception, if they cannot be
    /// read.
    [[nodiscard]] std::vector<Row> rows();
    /// Adds a row, or removes rows, with the next write. Both read the rows first.
    void add(const Row& row);
    void remove(const std::vector<Row>& rows);

    [[nodiscard]] const std::string& name() const { return m_layout.name; }
    [[nodiscard]] bool isRead() const { return m_entries.has_value(); }
    [[nodiscard]] bool hasChanges() const { return m_isChanged; }

    /// Writes every change. Must be called in a transaction, and followed by markSaved() after its commit.
    void write();
    void markSaved();
    /// Replaces what another store holds by the rows in memory, if they have been read. Must be followed by
    /// markAllSaved() once that is the store.
    void writeAll();
    void markAllSaved();

private:
    struct Entry {
        Row row;
        std::optional<std::int64_t> key;
    };

    [[nodiscard]] std::vector<Entry>& entries();
    void insert(const Row& row);
    void changed();

    SQLite::Database& m_database;
    TableLayout m_layout;
    std::function<void()> m_changed;
    std::optional<std::vector<Entry>> m_entries;
    std::vector<std::int64_t> m_removed;
    /// The keys of the rows that were inserted since the last save, in the order of the entries.
    std::vector<std::int64_t> m_written;
    bool m_isChanged = false;
};
