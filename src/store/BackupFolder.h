// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <stop_token>

/// A copy of the store. Whether it is sound is known once it has been read (see readBackup()).
struct BackupFile {
    QString path;
    /// When it was made, by the clock and time zone of then. A clock that was set back leaves times in the future.
    QDateTime made;
    /// In bytes.
    qint64 size = 0;
    /// It was kept beside the store when that was converted to a new format. Such copies are never removed.
    bool isBeforeMigration = false;

    bool operator==(const BackupFile&) const = default;
};

/// The backups of a store: the folder `Backups` beside it, readable by its owner alone, in which a backup is called
/// "Pellory 2026-11-22 09.15.00.store" by local time, and the copies that migrations have kept beside the store. Other
/// files are neither listed nor touched. Holds nothing open; a copy of this object works on the same files.
class BackupFolder {
public:
    explicit BackupFolder(const QString& storePath);

    [[nodiscard]] QString path() const { return m_path; }

    /// The newest first. No file is opened.
    [[nodiscard]] QList<BackupFile> backups() const;

    /// Makes a verified backup, which appears whole or not at all. Locks nothing in the store and never changes it. May
    /// be called on any thread, but only once at a time. Throws a StoreError: with the cause Lock if the store changes
    /// all the while, otherwise with the reason in words for the person.
    BackupFile make(const QDateTime& now, const std::stop_token& stop = {}) const;
    /// Removes the backups that are not kept any more (see keptBackups()). To be called after a backup was made.
    void thin(const QDateTime& now) const;

private:
    QString m_storePath;
    QString m_path;
};
