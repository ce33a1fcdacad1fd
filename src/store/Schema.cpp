// SPDX-License-Identifier: GPL-3.0-or-later
#include "Schema.h"

#include "RecordFields.h"
#include "StoreError.h"

#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

namespace {

constexpr int applicationId = 0x50656c6c; // "Pell"
constexpr int storeVersion = 1;

constexpr const char* monthIndexSql = "CREATE INDEX month_by_period ON month (year, month)";

std::vector<TableLayout> tables()
{
    return {monthFields().layout(), goalFields().layout(), settingsFields().layout()};
}

int pragma(SQLite::Database& database, const char* name)
{
    return database.execAndGet(std::string("PRAGMA ") + name).getInt();
}

void verifyMarks(SQLite::Database& database)
{
    if (pragma(database, "application_id") != applicationId)
        throw StoreError(StoreError::tr("The file is not a data store of Pellory."));
    const int version = pragma(database, "user_version");
    if (version > storeVersion)
        throw StoreError(
            StoreError::tr("The data store was written by a newer version of Pellory (format %1, this version knows "
                           "format %2). Install that version to open it.")
                .arg(version)
                .arg(storeVersion));
    if (version < storeVersion)
        throw StoreError(StoreError::tr("The data store has the unknown format %1.").arg(version));
}

void verifyHas(SQLite::Database& database, const std::string& createSql, const std::string& name)
{
    SQLite::Statement query(database, "SELECT sql FROM sqlite_schema WHERE name = ?");
    query.bind(1, name);
    if (!query.executeStep())
        throw StoreError(StoreError::tr("The data store lacks \"%1\".").arg(QString::fromStdString(name)));
    if (query.getColumn(0).getString() != createSql)
        throw StoreError(StoreError::tr("\"%1\" in the data store has another form than expected.")
                             .arg(QString::fromStdString(name)));
}

// SQLite takes a file whose header names an unknown version of its format for one that may only be read.
void verifyWritable(SQLite::Database& database)
{
    const bool isReadOnly = sqlite3_db_readonly(database.getHandle(), "main") == 1;
    if (isReadOnly && QFileInfo(QString::fromStdString(database.getFilename())).isWritable())
        throw StoreError(StoreError::tr("The data store is damaged: its header does not allow writing."));
}

void verifySchema(SQLite::Database& database)
{
    for (const TableLayout& table : tables())
        verifyHas(database, table.createSql(), table.name);
    verifyHas(database, monthIndexSql, "month_by_period");
}

void verifyPages(SQLite::Database& database)
{
    const std::string finding = database.execAndGet("PRAGMA integrity_check(1)").getString();
    if (finding != "ok")
        throw StoreError(StoreError::tr("The data store is damaged: %1").arg(QString::fromStdString(finding)));
}

void verifyRecords(SQLite::Database& database, const TableLayout& table)
{
    SQLite::Statement rows(database, table.selectSql());
    while (rows.executeStep()) {
        try {
            static_cast<void>(readRow(rows, table));
        } catch (const StoreError& error) {
            throw StoreError(StoreError::tr("The data store is damaged: record %1 of \"%2\" cannot be read, %3.")
                                 .arg(rows.getColumn(0).getInt64())
                                 .arg(QString::fromStdString(table.name), error.description()));
        }
    }
}

} // namespace

SQLite::Database connectToStore(const std::string& path, int lockTimeout)
{
    // Pages one by one: the block of them that would be taken at once is larger than most stores.
    static const int isSparing = sqlite3_config(SQLITE_CONFIG_PAGECACHE, nullptr, 0, 0);
    static_cast<void>(isSparing);
    SQLite::Database database(path, SQLite::OPEN_READWRITE, lockTimeout);
    database.exec("PRAGMA synchronous = FULL");
    return database;
}

void createSchema(SQLite::Database& database)
{
    SQLite::Transaction transaction(database);
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    database.exec("PRAGMA user_version = " + std::to_string(storeVersion));
    for (const TableLayout& table : tables())
        database.exec(table.createSql());
    database.exec(monthIndexSql);
    transaction.commit();
}

void verifyStore(SQLite::Database& database)
{
    // One reading, so that every part of it sees the same store.
    SQLite::Transaction reading(database);
    verifyMarks(database);
    verifyWritable(database);
    verifySchema(database);
    verifyPages(database);
    for (const TableLayout& table : tables())
        verifyRecords(database, table);
    reading.commit();
}

QString descriptionOf(const SQLite::Exception& error)
{
    const QString detail = QString::fromUtf8(error.what());
    switch (error.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError::tr(
            "The data store is in use by another program. Close that program and start Pellory again.");
    case SQLITE_NOTADB:
        return StoreError::tr("The file is not a data store of Pellory (%1).").arg(detail);
    case SQLITE_CORRUPT:
        return StoreError::tr("The data store is damaged (%1).").arg(detail);
    case SQLITE_FULL:
        return StoreError::tr("The disk is full (%1).").arg(detail);
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return StoreError::tr("The data store or its folder cannot be written (%1).").arg(detail);
    default:
        return StoreError::tr("The data store cannot be used (%1).").arg(detail);
    }
}
