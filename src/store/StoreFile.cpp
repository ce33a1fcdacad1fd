// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFile.h"

#include "Schema.h"
#include "StoreError.h"

#include <QFile>
#include <QTemporaryFile>

#include <SQLiteCpp/Database.h>

using namespace Qt::StringLiterals;

namespace {

void removeIfThere(const QString& path)
{
    QFile file(path);
    if (file.exists() && !file.remove())
        throw StoreError(u"%1: %2"_s.arg(path, file.errorString()));
}

} // namespace

void createStoreFile(const QString& path)
{
    QTemporaryFile draft(path + ".new-XXXXXX"_L1);
    if (!draft.open())
        throw StoreError(StoreError::tr("The data store cannot be created: %1").arg(draft.errorString()));
    {
        SQLite::Database database(draft.fileName().toStdString(), SQLite::OPEN_READWRITE);
        // The draft is dropped whole if this fails: it needs no way back.
        database.exec("PRAGMA journal_mode = OFF");
        createSchema(database);
    }
    if (draft.rename(path))
        draft.setAutoRemove(false);
    else if (!QFile::exists(path))
        throw StoreError(StoreError::tr("The data store cannot be created: %1").arg(draft.errorString()));
}

void removeStoreFile(const QString& path)
{
    // The store goes first: a journal without its store means nothing to the database, while a store without its
    // journal would be damaged if the removal stopped halfway.
    removeIfThere(path);
    for (const auto suffix : {"-journal"_L1, "-wal"_L1, "-shm"_L1})
        removeIfThere(path + suffix);
}
