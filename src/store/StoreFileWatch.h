// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SaveState.h"

#include <optional>
#include <string>

#include <sys/types.h>

/// Recognises that the file of an open store has been replaced, changed by another program, moved or deleted.
class StoreFileWatch {
public:
    explicit StoreFileWatch(std::string path)
        : m_path(std::move(path))
    {
    }

    [[nodiscard]] const std::string& path() const { return m_path; }

    /// Accepts the file as it is now. To be called when the store has been opened and after each attempt to write.
    void accept();
    [[nodiscard]] SaveState::File look() const;
    /// Whether what lies there is the file that was opened, whatever it contains.
    [[nodiscard]] bool isSameFile() const;

private:
    struct Stamp {
        dev_t device;
        ino_t inode;
        off_t size;
        timespec modified;
    };

    [[nodiscard]] std::optional<Stamp> read() const;
    [[nodiscard]] bool isSame(const Stamp& now) const;

    std::string m_path;
    std::optional<Stamp> m_accepted;
    bool m_isContentKnown = false;
};
