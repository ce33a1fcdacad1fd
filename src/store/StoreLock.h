// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

#include <chrono>

/// Keeps a second program from using a store: each would hold its own copies of the records, and erase the other's
/// changes. It is a lock of the system on a file beside the store, so it is free as soon as its owner has ended,
/// however that came. The file stays.
class StoreLock {
public:
    explicit StoreLock(const QString& storePath);

    /// False if another program has the lock and keeps it so long. Where the system has no locks there is none to wait
    /// for.
    [[nodiscard]] bool acquire(std::chrono::milliseconds timeout);

private:
    QFile m_file;
};
