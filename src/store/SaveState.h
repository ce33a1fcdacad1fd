// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Whether everything is on disk, and if not, why.
struct SaveState {
    enum class File {
        Ours,
        /// Another program has put another file in the store's place, or has changed the file.
        Replaced,
        /// The file has been moved or deleted.
        Missing
    };

    /// While the file is not ours nothing is written.
    File file = File::Ours;
    bool isUnsaved = false;
    /// Why the last attempt failed and what to do, in words for the person. May be empty.
    QString problem;

    [[nodiscard]] bool isFine() const { return file == File::Ours && !isUnsaved; }
    bool operator==(const SaveState&) const = default;
};
