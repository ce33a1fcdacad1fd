// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryFile>

#include <string>

/// A file that gets its name once it is whole, and is removed if it never does. All functions throw a StoreError.
class Draft {
public:
    /// Lies beside `path`, readable by its owner alone.
    explicit Draft(const QString& path);

    [[nodiscard]] std::string fileName() const { return m_file.fileName().toStdString(); }
    [[nodiscard]] bool hasContentsOf(const QString& path);

    void clear() { m_file.resize(0); }
    /// Waits until the contents are on disk.
    void synchronise() const;
    /// Renames the draft. False if there is a file of that name, which stays.
    [[nodiscard]] bool take(const QString& path);

    /// Removes the drafts of `path` that killed programs have left.
    static void removeAbandoned(const QString& path);

private:
    [[noreturn]] void fail(const QString& reason) const;

    QString m_path;
    QTemporaryFile m_file;
};

/// Waits until the names in a folder are on disk: without that a power cut can undo a rename.
void synchroniseFolder(const QString& folder);
