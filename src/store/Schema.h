// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

class QString;

/// Writes the tables and the marks of a store ("application_id", "user_version") into an empty database.
void createSchema(SQLite::Database& database);

/// Throws a StoreError, or the database's own exception, unless this is a store of a version that this program knows,
/// sound in all its pages, and every record in it reads as it was written. Changes nothing.
void verifyStore(SQLite::Database& database);

/// What went wrong with the database, in words for the person.
[[nodiscard]] QString descriptionOf(const SQLite::Exception& error);
