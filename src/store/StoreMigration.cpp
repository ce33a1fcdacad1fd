// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreMigration.h"

#include "Connection.h"
#include "Schema.h"
#include "StoreError.h"
#include "StoreFile.h"
#include "Verification.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>

namespace {

using KeyedRows = std::vector<std::pair<std::int64_t, Row>>;

KeyedRows readRows(SQLite::Database& database, const TableLayout& table)
{
    KeyedRows rows;
    SQLite::Statement query(database, table.selectSql());
    while (query.executeStep())
        rows.emplace_back(query.getColumn(0).getInt64(), readRow(query, table));
    return rows;
}

Value initialValue(const Migration& migration, const TableLayout& table, const Column& column)
{
    const auto isColumn = [&](const NewColumn& added) {
        return added.table == table.name && added.column == column.name;
    };
    return std::ranges::find_if(migration.newColumns, isColumn)->initial;
}

Row widened(const Row& row, const TableLayout& from, const TableLayout& to, const Migration& migration)
{
    Row wide;
    for (const Column& column : to.columns) {
        const auto old = std::ranges::find(from.columns, column);
        wide.push_back(old == from.columns.end() ? initialValue(migration, to, column)
                                                 : row.at(static_cast<std::size_t>(old - from.columns.begin())));
    }
    return wide;
}

// ALTER TABLE would put the column behind the checksum and leave other SQL text than a new store has.
void rebuildTable(SQLite::Database& database, const TableLayout& from, const TableLayout& to,
                  const Migration& migration)
{
    const KeyedRows rows = readRows(database, from);
    database.exec("DROP TABLE " + from.name);
    database.exec(to.createSql());
    SQLite::Statement insertion(database, to.insertSql());
    for (const auto& [key, row] : rows)
        writeRow(insertion, widened(row, from, to, migration), key);
}

bool isDefined(SQLite::Database& database, const std::string& name)
{
    SQLite::Statement query(database, "SELECT 1 FROM sqlite_schema WHERE name = ?");
    query.bind(1, name);
    return query.executeStep();
}

void applyLastMigration(SQLite::Database& database, const Schema& schema)
{
    const Schema before = schema.atVersion(schema.version() - 1);
    for (const TableLayout& table : schema.tables) {
        const auto old = std::ranges::find(before.tables, table.name, &TableLayout::name);
        if (old == before.tables.end())
            database.exec(table.createSql());
        else if (*old != table)
            rebuildTable(database, *old, table, schema.migrations.back());
    }
    for (const Index& index : schema.indexes) {
        if (!isDefined(database, index.name)) // it is new, or was dropped with its table
            database.exec(index.sql);
    }
}

void migrate(SQLite::Database& database, const Schema& schema, int fromVersion)
{
    // The first change takes the write lock, so only one program at a time makes a copy.
    database.exec("PRAGMA user_version = " + std::to_string(schema.version()));
    keepStoreCopy(QString::fromStdString(database.getFilename()), schema);
    removeUnreadableRows(database, schema.atVersion(fromVersion));
    for (int version = fromVersion + 1; version <= schema.version(); ++version)
        applyLastMigration(database, schema.atVersion(version));
    static_cast<void>(verifyStore(database, schema));
}

StoreError migrationError(const StoreError& reason)
{
    return StoreError(StoreError::tr("The data store cannot be converted to the format of this version of Pellory, "
                                     "and is left as it was. %1")
                          .arg(reason.description()),
                      reason.cause());
}

} // namespace

void migrateStore(SQLite::Database& database, const Schema& schema, int fromVersion)
{
    try {
        migrate(database, schema, fromVersion);
    } catch (const SQLite::Exception& error) {
        throw migrationError(storeError(error));
    } catch (const StoreError& error) {
        throw migrationError(error);
    }
}
