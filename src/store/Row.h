// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace SQLite {
class Statement;
}

/// One stored value: a whole number or UTF-8 text.
using Value = std::variant<std::int64_t, std::string>;

/// The fields of one record in the order of its table's columns, without key and checksum.
using Row = std::vector<Value>;

enum class ColumnType { Integer, Text };

struct Column {
    const char* name;
    ColumnType type;
};

/// A table holds one kind of record: a key ("pk"), the record's fields, and a checksum of the fields.
struct TableLayout {
    const char* name;
    std::span<const Column> columns;

    [[nodiscard]] std::string createSql() const;
    /// Key, fields and checksum of every row.
    [[nodiscard]] std::string selectSql() const;
    /// Parameters: the fields, then the checksum.
    [[nodiscard]] std::string insertSql() const;
    /// Parameters: the fields, the checksum, then the key of the row.
    [[nodiscard]] std::string updateSql() const;
};

/// A hash of the fields that tells whether a row reads as it was written (XXH3, 64 bits, over each field's type, length
/// and bytes). It guards against damage, not against intent.
[[nodiscard]] std::int64_t checksum(const Row& row);

/// The fields of the row that a statement made by selectSql() stands on. Throws a StoreError when a field has another
/// type or the checksum differs.
[[nodiscard]] Row readRow(SQLite::Statement& statement, const TableLayout& layout);

/// Binds the fields and their checksum to the first parameters of a statement.
void bindRow(SQLite::Statement& statement, const Row& row);
