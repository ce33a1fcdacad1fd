// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

class QString;
class StoreError;

/// How long a save waits for another program that holds the store, in milliseconds. It is short because a click waits
/// for it; the save is tried again soon.
inline constexpr int saveLockTimeout = 10;

/// Makes SQLite allocate cached pages one by one instead of 20 at a time, more than most stores have: 140 kB less in a
/// store of three months. Must be called before the process opens any database; logs a warning if it is too late.
void limitSqliteCache();

/// Opens a connection with the settings of a store, read-only if the file is not writable. `lockTimeout` is how long it
/// waits for another program, in milliseconds.
[[nodiscard]] SQLite::Database connectToStore(const std::string& path, int lockTimeout);

/// The error in words for the person.
[[nodiscard]] QString descriptionOf(const SQLite::Exception& error);
[[nodiscard]] StoreError storeError(const SQLite::Exception& error);
