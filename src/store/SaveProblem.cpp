// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveProblem.h"

#include "StoreError.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

QString saveProblem(const SQLite::Exception& error)
{
    switch (error.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError::tr("Another program is using the data file. Close it if this lasts.");
    case SQLITE_FULL:
        return StoreError::tr("The disk is full. Delete files that you do not need any more.");
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return StoreError::tr("Pellory may not write its data file. Check the permissions of the file and its folder.");
    default:
        return StoreError::tr("The disk does not take the data (%1). Check it, and make a copy of your data.")
            .arg(QString::fromUtf8(error.what()));
    }
}
