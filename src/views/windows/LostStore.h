// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Why the store is new.
enum class LostStore {
    /// There was none, as at the first start.
    Missing,
    /// It could not be read, and the person had it deleted.
    Deleted
};
