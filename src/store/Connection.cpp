// SPDX-License-Identifier: GPL-3.0-or-later
#include "Connection.h"

#include "StoreError.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

SQLite::Database connectToStore(const std::string& path, int lockTimeout)
{
    // Pages one by one: the block of them that would be taken at once is larger than most stores.
    static const int isSparing = sqlite3_config(SQLITE_CONFIG_PAGECACHE, nullptr, 0, 0);
    static_cast<void>(isSparing);
    SQLite::Database database(path, SQLite::OPEN_READWRITE, lockTimeout);
    database.exec("PRAGMA synchronous = FULL");
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
