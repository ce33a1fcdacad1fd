// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

/// Puts an empty store at `path`, readable by its owner alone. It appears whole or not at all; a file that is there
/// already stays. Throws a StoreError, or the database's own exception.
void createStoreFile(const QString& path);

/// Removes a store and the side files that the database keeps beside it, and nothing else. Throws a StoreError.
void removeStoreFile(const QString& path);
