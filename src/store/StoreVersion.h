// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

/// Whether opening a store would migrate it. Only reads the head of the file, which need not be a store.
[[nodiscard]] bool isOfEarlierVersion(const QString& storeFile);
