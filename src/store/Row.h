// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace SQLite {
class Statement;
}

/// One stored value: an integer or UTF-8 text.
using Value = std::variant<std::int64_t, std::string>;

/// The fields of one record in the order of its table's columns, without key and checksum.
using Row = std::vector<Value>;

enum class ColumnType { Integer, Text };

struct Column {
    std::string name;
    ColumnType type;

    bool operator==(const Column&) const = default;
};

/// A table holds one kind of record: a key ("pk"), the record's fields, and a checksum of the fields.
struct TableLayout {
    std::string name;
    std::vector<Column> columns;
    /// Whether opening a store leaves it to later readers to verify the rows.
    bool isLarge = false;

    [[nodiscard]] std::string createSql() const;
    /// Key, fields and checksum of every row.
    [[nodiscard]] std::string selectSql() const;
    /// Parameters as for writeRow(). A row without a key gets a new one.
    [[nodiscard]] std::string insertSql() const;
    /// Parameters as for writeRow().
    [[nodiscard]] std::string updateSql() const;
    /// Parameter: the key.
    [[nodiscard]] std::string deleteSql() const;

    bool operator==(const TableLayout&) const = default;
};

/// A hash of the fields (XXH3, 64 bits, over each field's type, length and bytes). It detects damage, not tampering.
[[nodiscard]] std::int64_t checksum(const Row& row);

/// The fields of the current row of a statement made from selectSql(). Throws a StoreError when a field has the wrong
/// type or the checksum differs.
[[nodiscard]] Row readRow(SQLite::Statement& statement, const TableLayout& layout);

/// Runs a statement made from insertSql() or updateSql(): binds the fields, their checksum and the key.
void writeRow(SQLite::Statement& statement, const Row& row, std::optional<std::int64_t> key);
