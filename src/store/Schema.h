// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

class QString;

/// How long a save waits for another program that holds the store, in milliseconds. It happens on the path of a click,
/// so it is short; the save is tried again with the next one.
inline constexpr int saveLockTimeout = 10;

/// Opens a connection with the settings of a store; for reading alone where the file cannot be written. `lockTimeout`
/// is how long it waits for another program, in milliseconds.
[[nodiscard]] SQLite::Database connectToStore(const std::string& path, int lockTimeout);

/// Writes the tables and the marks of a store ("application_id", "user_version") into an empty database.
void createSchema(SQLite::Database& database);

/// Throws a StoreError, or the database's own exception, unless this is a store of a version that this program knows,
/// sound in all its pages, and every record in it reads as it was written. Changes nothing.
void verifyStore(SQLite::Database& database);

/// What went wrong with the database, in words for the person.
[[nodiscard]] QString descriptionOf(const SQLite::Exception& error);
