// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <system_error>

class QString;

/// The store in the user's folder for the data of applications.
[[nodiscard]] QString storeFileIn(const QString& dataFolder);

/// Creates the folder of a store, readable by its owner alone, if there is none.
[[nodiscard]] std::error_code createStoreFolder(const QString& storeFile);
