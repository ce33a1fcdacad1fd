// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFile.h"

#include "Draft.h"
#include "Schema.h"
#include "StoreError.h"
#include "Verification.h"

#include <QFile>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// What the database keeps beside a store.
constexpr std::array sideFiles{"-journal"_L1, "-wal"_L1, "-shm"_L1};

/// A connection to a draft, which is dropped whole if writing fails and so needs no journal.
SQLite::Database connectToDraft(const Draft& draft)
{
    SQLite::Database database(draft.fileName(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA journal_mode = OFF");
    return database;
}

void copyStore(const QString& path, const Draft& draft)
{
    SQLite::Database source(path.toStdString());
    SQLite::Database copy = connectToDraft(draft);
    SQLite::Backup backup(copy, source);
    if (const int result = backup.executeStep(); result != SQLITE_DONE)
        throw SQLite::Exception("the store cannot be copied", result);
}

// Of a store that is gone. The database would take it for the journal of a new store, and play it into that.
void putAside(const QString& path)
{
    QFile file(path);
    QString name = path + ".old"_L1;
    for (int number = 2; file.exists() && !file.rename(name); ++number) {
        if (!QFile::exists(name))
            throw StoreError(StoreError::tr("The file %1 cannot be renamed: %2.").arg(path, file.errorString()),
                             StoreError::Cause::Obstacle);
        name = path + u".old-%1"_s.arg(number);
    }
}

void removeIfPresent(const QString& path)
{
    QFile file(path);
    if (file.exists() && !file.remove())
        throw StoreError(u"%1: %2"_s.arg(path, file.errorString()));
}

} // namespace

void createStoreFile(const QString& path, const Schema& schema)
{
    Draft::removeAbandoned(path);
    for (const auto suffix : sideFiles)
        putAside(path + suffix);
    Draft draft(path);
    {
        SQLite::Database database = connectToDraft(draft);
        createSchema(database, schema);
    }
    static_cast<void>(draft.take(path));
}

void keepStoreCopy(const QString& path, const Schema& schema)
{
    const QString firstName = path + u".before-%1"_s.arg(schema.version());
    Draft::removeAbandoned(firstName);
    Draft draft(firstName);
    copyStore(path, draft);
    {
        SQLite::Database copy(draft.fileName(), SQLite::OPEN_READWRITE);
        verifyCopy(copy, schema);
    }
    QString name = firstName;
    for (int number = 2; !draft.hasContentsOf(name) && !draft.take(name); ++number)
        name = firstName + u"-%1"_s.arg(number);
}

void removeStoreFile(const QString& path)
{
    // The store goes first: if the removal stops halfway, a journal without its store does no harm, while a store
    // without its journal would be damaged.
    removeIfPresent(path);
    for (const auto suffix : sideFiles)
        removeIfPresent(path + suffix);
}
