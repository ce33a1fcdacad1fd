// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Row.h"

struct Index {
    std::string name;
    std::string sql;

    bool operator==(const Index&) const = default;
};

/// A column that a migration adds to an existing table, and what existing rows get there.
struct NewColumn {
    std::string table;
    std::string column;
    Value initial;
};

/// What one version of the store adds to the version before it: new tables and indexes by name, and new columns. A
/// version that adds none of these, because only the values that a field can hold have changed, has an empty migration.
struct Migration {
    std::vector<std::string> newTables = {};
    std::vector<std::string> newIndexes = {};
    std::vector<NewColumn> newColumns = {};
};

/// What a store consists of, and how it came to that since version 1.
struct Schema {
    std::vector<TableLayout> tables;
    std::vector<Index> indexes;
    /// The first leads from version 1 to version 2, and so on. Released migrations never change.
    std::vector<Migration> migrations;

    [[nodiscard]] int version() const { return static_cast<int>(migrations.size()) + 1; }
    /// The schema as it was in a version from 1 to version().
    [[nodiscard]] Schema atVersion(int version) const;
};

/// The tables of records that are few and never change (see RowSet).
[[nodiscard]] std::vector<TableLayout> smallTables();

/// The schema of this program.
[[nodiscard]] Schema pellorySchema();
