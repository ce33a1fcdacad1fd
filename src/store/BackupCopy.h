// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stop_token>
#include <string>

class QString;
namespace SQLite {
class Database;
}

/// Opens a store for reading without locks, so that nobody who writes it has to wait, and nothing is made beside it. If
/// it is written meanwhile, what is read is wrong. Throws the database's own exception.
[[nodiscard]] SQLite::Database connectUnlocked(const QString& path);

/// Copies a store into an empty file. False if the store was written meanwhile, and the copy is of no use. Throws the
/// database's own exception, also if stopped.
[[nodiscard]] bool copyUnlocked(const QString& path, const std::string& copy, const std::stop_token& stop);
