// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFileWatch.h"

#include <sys/stat.h>
#include <unistd.h>

void StoreFileWatch::accept()
{
    m_accepted = read();
    // A failed attempt can leave a journal, and whoever reads the store next then undoes the attempt.
    m_isContentKnown = access((m_path + "-journal").c_str(), F_OK) != 0;
}

SaveState::File StoreFileWatch::look() const
{
    if (!m_accepted)
        return SaveState::File::Ours;
    const auto now = read();
    if (!now)
        return SaveState::File::Missing;
    if (!isSame(*now))
        return SaveState::File::Replaced;
    const bool isChanged = now->size != m_accepted->size || now->modified.tv_sec != m_accepted->modified.tv_sec ||
                           now->modified.tv_nsec != m_accepted->modified.tv_nsec;
    return isChanged && m_isContentKnown ? SaveState::File::Replaced : SaveState::File::Ours;
}

bool StoreFileWatch::isSameFile() const
{
    const auto now = read();
    return now && m_accepted && isSame(*now);
}

bool StoreFileWatch::isSame(const Stamp& now) const
{
    return now.device == m_accepted->device && now.inode == m_accepted->inode;
}

std::optional<StoreFileWatch::Stamp> StoreFileWatch::read() const
{
    struct stat status {};
    if (stat(m_path.c_str(), &status) != 0)
        return {};
    return Stamp{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}
