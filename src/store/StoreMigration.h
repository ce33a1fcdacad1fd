// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace SQLite {
class Database;
} // namespace SQLite

struct Schema;

/// Keeps a copy of a verified store of an earlier version (see keepStoreCopy()), brings the store to the schema's
/// version and verifies the result. Must run in a transaction: the store keeps its old contents until that is
/// committed. Throws a StoreError.
void migrateStore(SQLite::Database& database, const Schema& schema, int fromVersion);
