// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;
struct Schema;

/// Puts an empty store at `path`, readable by its owner alone. It appears whole or not at all, and never replaces an
/// existing file. A journal that is left of another store is kept under another name ("Pellory.store-journal.old").
/// Throws a StoreError, or the database's own exception.
void createStoreFile(const QString& path, const Schema& schema);

/// Keeps a verified copy of the store at `path` beside it, readable by its owner alone, before it is migrated to the
/// schema's version: as "Pellory.store.before-2" before version 2. It appears whole or not at all. An existing file of
/// that name stays, and the copy is numbered ("before-2-2") unless that file has the same contents. The caller holds
/// the write lock of the store. Throws a StoreError, or the database's own exception.
void keepStoreCopy(const QString& path, const Schema& schema);

/// Removes a store and the side files that the database keeps beside it, and nothing else. Throws a StoreError.
void removeStoreFile(const QString& path);
