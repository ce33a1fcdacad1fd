// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace SQLite {
class Database;
} // namespace SQLite

struct Schema;

/// Marks an empty database as a store of the schema's version ("application_id", "user_version") and adds its tables.
void createSchema(SQLite::Database& database, const Schema& schema);

enum class VerificationDepth {
    /// All but the rows of large tables.
    ForOpening,
    Whole
};

/// Returns the version of the store. Throws a StoreError, or the database's own exception, unless it is a store of the
/// schema's version or an earlier one, has the tables of that version, is sound in all its pages, and every record
/// reads as it was written. Tables that the schema does not know are ignored. Changes nothing.
[[nodiscard]] int verifyStore(SQLite::Database& database, const Schema& schema,
                              VerificationDepth depth = VerificationDepth::Whole);

/// Removes the rows of large tables that cannot be read, with a line in the log. Throws the database's own exception.
void removeUnreadableRows(SQLite::Database& database, const Schema& schema);

/// Verifies a copy of a store whole. Rows of large tables that cannot be read are
/// removed; the store passes over them as well. Throws like verifyStore().
void verifyCopy(SQLite::Database& database, const Schema& schema);
