// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryFile>

#include <string>

struct Schema;
namespace SQLite {
class Database;
}

/// A store that is made beside another file and takes its place once it is whole. What lies there is never deleted. All
/// functions throw a StoreError, or the database's own exception.
class StoreReplacement {
public:
    explicit StoreReplacement(const QString& path);

    /// Where the store is before it takes its place.
    [[nodiscard]] std::string draftName() const { return m_draft.fileName().toStdString(); }

    void copyFrom(SQLite::Database& source);
    /// Copies a backup of this or an earlier version. Throws a StoreError unless it is sound. May be called on any
    /// thread.
    void copyBackup(const QString& path);
    /// Starts with what lies there, or empty if that is no sound store of the schema's version.
    void copyWhatLiesThere(const Schema& schema);

    /// Takes the place. What lies there is called "Pellory.store.replaced" from now on, or "replaced-2" and so on.
    void putInPlace();

private:
    void putAside();

    QString m_path;
    QTemporaryFile m_draft;
};
