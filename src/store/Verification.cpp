// SPDX-License-Identifier: GPL-3.0-or-later
#include "Verification.h"

#include "Schema.h"
#include "StoreError.h"

#include <QFileInfo>
#include <QLoggingCategory>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <functional>
#include <vector>

namespace {

Q_LOGGING_CATEGORY(logVerification, "pellory.store", QtInfoMsg)

constexpr int applicationId = 0x50656c6c; // "Pell"

int pragma(SQLite::Database& database, const char* name)
{
    return database.execAndGet(std::string("PRAGMA ") + name).getInt();
}

int verifyVersion(SQLite::Database& database, int newest)
{
    if (pragma(database, "application_id") != applicationId)
        throw StoreError(StoreError::tr("The file is not a data store of Pellory."));
    const int version = pragma(database, "user_version");
    if (version > newest)
        throw StoreError(
            StoreError::tr("The data store was written by a newer version of Pellory (format %1, this version knows "
                           "format %2). Install that version to open it.")
                .arg(version)
                .arg(newest),
            StoreError::Cause::Obstacle);
    if (version < 1)
        throw StoreError(StoreError::tr("The data store has the unknown format %1.").arg(version));
    return version;
}

// SQLite treats a file as read-only if its header names an unknown version of the file format.
void verifyWritable(SQLite::Database& database)
{
    const bool isReadOnly = sqlite3_db_readonly(database.getHandle(), "main") == 1;
    if (isReadOnly && QFileInfo(QString::fromStdString(database.getFilename())).isWritable())
        throw StoreError(StoreError::tr("The data store is damaged: its header does not allow writing."));
}

void verifyDefinition(SQLite::Database& database, const std::string& name, const std::string& sql)
{
    SQLite::Statement query(database, "SELECT sql FROM sqlite_schema WHERE name = ?");
    query.bind(1, name);
    if (!query.executeStep())
        throw StoreError(StoreError::tr("The data store lacks \"%1\".").arg(QString::fromStdString(name)));
    if (query.getColumn(0).getString() != sql)
        throw StoreError(
            StoreError::tr("\"%1\" in the data store is not defined as expected.").arg(QString::fromStdString(name)));
}

void verifyDefinitions(SQLite::Database& database, const Schema& schema)
{
    for (const TableLayout& table : schema.tables)
        verifyDefinition(database, table.name, table.createSql());
    for (const Index& index : schema.indexes)
        verifyDefinition(database, index.name, index.sql);
}

void verifyPages(SQLite::Database& database)
{
    const std::string finding = database.execAndGet("PRAGMA integrity_check(1)").getString();
    if (finding != "ok")
        throw StoreError(StoreError::tr("The data store is damaged: %1").arg(QString::fromStdString(finding)));
}

/// What to do with a row that cannot be read: its key, and why.
using UnreadableRow = std::function<void(std::int64_t, const StoreError&)>;

void readRecords(SQLite::Database& database, const TableLayout& table, const UnreadableRow& report)
{
    SQLite::Statement rows(database, table.selectSql());
    while (rows.executeStep()) {
        try {
            static_cast<void>(readRow(rows, table));
        } catch (const StoreError& error) {
            report(rows.getColumn(0).getInt64(), error);
        }
    }
}

void verifyRecords(SQLite::Database& database, const TableLayout& table)
{
    readRecords(database, table, [&](std::int64_t key, const StoreError& error) {
        throw StoreError(StoreError::tr("The data store is damaged: record %1 of \"%2\" cannot be read, %3.")
                             .arg(key)
                             .arg(QString::fromStdString(table.name), error.description()));
    });
}

void removeUnreadableRows(SQLite::Database& database, const TableLayout& table)
{
    std::vector<std::int64_t> keys;
    readRecords(database, table, [&](std::int64_t key, const StoreError&) { keys.push_back(key); });
    if (keys.empty())
        return;
    qCWarning(logVerification, "%zu damaged rows of %s are left out", keys.size(), table.name.c_str());
    SQLite::Statement deletion(database, table.deleteSql());
    for (const std::int64_t key : keys) {
        deletion.bind(1, key);
        deletion.exec();
        deletion.reset();
    }
}

} // namespace

void createSchema(SQLite::Database& database, const Schema& schema)
{
    SQLite::Transaction transaction(database);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    database.exec("PRAGMA user_version = " + std::to_string(schema.version()));
    for (const TableLayout& table : schema.tables)
        database.exec(table.createSql());
    for (const Index& index : schema.indexes)
        database.exec(index.sql);
    transaction.commit();
}

int verifyStore(SQLite::Database& database, const Schema& schema, VerificationDepth depth)
{
    const int version = verifyVersion(database, schema.version());
    verifyWritable(database);
    const Schema expected = schema.atVersion(version);
    verifyDefinitions(database, expected);
    verifyPages(database);
    for (const TableLayout& table : expected.tables) {
        if (!table.isLarge || depth == VerificationDepth::Whole)
            verifyRecords(database, table);
    }
    return version;
}

void removeUnreadableRows(SQLite::Database& database, const Schema& schema)
{
    for (const TableLayout& table : schema.tables) {
        if (table.isLarge)
            removeUnreadableRows(database, table);
    }
}

void verifyCopy(SQLite::Database& database, const Schema& schema)
{
    const int version = verifyStore(database, schema, VerificationDepth::ForOpening);
    removeUnreadableRows(database, schema.atVersion(version));
}
