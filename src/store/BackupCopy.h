// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <stop_token>

class QString;
namespace SQLite {
class Database;
}

/// Opens a store for reading without locks, so that nobody who writes it has to wait, and nothing is made beside it. If
/// it is written meanwhile, what is read is wrong. Throws the database's own exception.
[[nodiscard]] SQLite::Database connectUnlocked(const QString& path);

/// Reads a store without locks, and again if it was written meanwhile. Throws a StoreError with the cause Lock if it is
/// written all the while, otherwise what `read` throws. If stopped, that is the database's own exception.
void readUnlocked(const QString& path, const std::function<void(SQLite::Database&)>& read, const std::stop_token& stop);
