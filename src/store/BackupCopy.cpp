// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupCopy.h"

#include "StoreFileWatch.h"

#include <QUrl>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <array>

#include <unistd.h>

namespace {

/// What the header of a store counts: its transactions. The time of the last change is too coarse to tell two of them
/// apart that follow each other at once.
using ChangeCounter = std::array<unsigned char, 4>;

// With the connection's own descriptor: closing another one would release the locks of this process.
ChangeCounter changeCounter(SQLite::Database& database)
{
    constexpr int offset = 24;
    sqlite3_file* file = nullptr;
    ChangeCounter counter{};
    sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    if (file->pMethods->xRead(file, counter.data(), static_cast<int>(counter.size()), offset) != SQLITE_OK)
        return {};
    return counter;
}

} // namespace

SQLite::Database connectUnlocked(const QString& path)
{
    const QByteArray name = "file:" + QUrl::toPercentEncoding(path, "/") + "?immutable=1";
    return {name.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI};
}

bool copyUnlocked(const QString& path, const std::string& copy, const std::stop_token& stop)
{
    SQLite::Database store = connectUnlocked(path);
    const auto isStopped = [](void* token) {
        return static_cast<const std::stop_token*>(token)->stop_requested() ? 1 : 0;
    };
    std::stop_token token = stop;
    sqlite3_progress_handler(store.getHandle(), 1000, isStopped, &token);
    // The journal lies beside the file itself, which a link may name.
    const char* file = sqlite3_db_filename(store.getHandle(), "main");
    const auto isBeingWritten = [&] { return access(sqlite3_filename_journal(file), F_OK) == 0; };
    StoreFileWatch watch(file);
    watch.accept();
    const ChangeCounter counter = changeCounter(store);
    if (isBeingWritten())
        return false;
    const auto isUnchanged = [&] {
        return !isBeingWritten() && watch.look() == SaveState::File::Ours && changeCounter(store) == counter;
    };
    try {
        store.exec("PRAGMA synchronous = OFF"); // the copy inherits it, and is of no use before it is whole
        SQLite::Statement statement(store, "VACUUM INTO ?");
        statement.bind(1, copy);
        statement.exec();
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_INTERRUPT || isUnchanged())
            throw;
        return false; // half of a change looks like damage
    }
    return isUnchanged();
}
