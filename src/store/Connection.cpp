// SPDX-License-Identifier: GPL-3.0-or-later
#include "Connection.h"

#include "StoreError.h"

#include <QLoggingCategory>

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

namespace {

Q_LOGGING_CATEGORY(logSqlite, "pellory.store", QtInfoMsg)

StoreError::Cause causeOf(int code)
{
    switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError::Cause::Lock;
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return StoreError::Cause::Obstacle;
    default:
        return StoreError::Cause::Damage;
    }
}

} // namespace

void limitSqliteCache()
{
    const int result = sqlite3_config(SQLITE_CONFIG_PAGECACHE, nullptr, 0, 0);
    if (result != SQLITE_OK)
        qCWarning(logSqlite, "The cache of SQLite cannot be limited: %s", sqlite3_errstr(result));
}

SQLite::Database connectToStore(const std::string& path, int lockTimeout)
{
    SQLite::Database database(path, SQLite::OPEN_READWRITE, lockTimeout);
    // A commit ends by deleting the journal. FULL does not wait until the folder is on disk as well, so that a power
    // cut seconds later would bring the journal back and undo the commit.
    database.exec("PRAGMA synchronous = EXTRA");
    return database;
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

StoreError storeError(const SQLite::Exception& error)
{
    return StoreError(descriptionOf(error), causeOf(error.getErrorCode()));
}
