// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupCopy.h"

#include "StoreError.h"
#include "StoreFileWatch.h"

#include <QUrl>

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include <array>

#include <unistd.h>

namespace {

// How often a store is read again because it has changed meanwhile.
constexpr int attempts = 3;

using Reader = std::function<void(SQLite::Database&)>;

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

/// False if the store was written meanwhile, and what was read is of no use.
bool isReadUndisturbed(const QString& path, const Reader& read, const std::stop_token& stop)
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
        read(store);
    } catch (const std::exception&) {
        if (stop.stop_requested() || isUnchanged())
            throw;
        return false; // half of a change looks like damage
    }
    return isUnchanged();
}

} // namespace

SQLite::Database connectUnlocked(const QString& path)
{
    const QByteArray name = "file:" + QUrl::toPercentEncoding(path, "/") + "?immutable=1";
    return {name.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI};
}

void readUnlocked(const QString& path, const Reader& read, const std::stop_token& stop)
{
    int attempt = 1;
    while (!isReadUndisturbed(path, read, stop)) {
        if (attempt++ == attempts)
            throw StoreError(StoreError::tr("The data file is being changed."), StoreError::Cause::Lock);
    }
}
