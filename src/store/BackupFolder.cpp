// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupFolder.h"

#include "BackupCopy.h"
#include "Connection.h"
#include "Draft.h"
#include "KeptBackups.h"
#include "Schema.h"
#include "StoreError.h"
#include "Verification.h"

#include <QDir>
#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

constexpr auto timeFormat = "yyyy-MM-dd HH.mm.ss"_L1;

QString fileName(const QDateTime& time, int number)
{
    const QString suffix = number > 1 ? u" (%1)"_s.arg(number) : QString();
    return "Pellory "_L1 + time.toString(timeFormat) + suffix + ".store"_L1;
}

/// Invalid if the name is not that of a backup. Without a regular expression, whose library would stay in memory.
QDateTime timeIn(const QString& name)
{
    constexpr qsizetype start = "Pellory "_L1.size(), length = "2026-11-22 09.15.00"_L1.size();
    const QDateTime time = QDateTime::fromString(name.mid(start, length), timeFormat);
    const int number = name.section(u'(', 1).section(u')', 0, 0).toInt(); // 0 if there is none
    return time.isValid() && name == fileName(time, number) ? time : QDateTime();
}

void makeFolder(const QString& path)
{
    const fs::path folder = path.toStdString();
    std::error_code error;
    if (fs::create_directory(folder, error)) {
        fs::permissions(folder, fs::perms::owner_all, error);
        synchroniseFolder(QFileInfo(path).path());
    } else if (error == std::errc::file_exists) {
        error = std::make_error_code(std::errc::not_a_directory);
    }
    if (error)
        throw StoreError(
            StoreError::tr("The folder %1 cannot be used: %2.").arg(path, QString::fromStdString(error.message())),
            StoreError::Cause::Obstacle);
}

void copyAndVerify(const QString& store, Draft& draft, const std::stop_token& stop)
{
    const auto copyInto = [&draft](SQLite::Database& source) {
        draft.clear();
        source.exec("PRAGMA synchronous = OFF"); // the copy inherits it, and is of no use before it is whole
        SQLite::Statement statement(source, "VACUUM INTO ?");
        statement.bind(1, draft.fileName());
        statement.exec();
    };
    readUnlocked(store, copyInto, stop);
    SQLite::Database copy(draft.fileName(), SQLite::OPEN_READWRITE);
    verifyCopy(copy, pellorySchema());
    draft.synchronise();
}

QString takeName(Draft& draft, const QString& folder, const QDateTime& now)
{
    const auto path = [&](int number) { return folder + '/'_L1 + fileName(now, number); };
    int number = 1;
    while (!draft.take(path(number)))
        ++number;
    synchroniseFolder(folder);
    return path(number);
}

BackupFile describe(const QFileInfo& file, const QDateTime& made)
{
    return {.path = file.filePath(), .made = made, .size = file.size()};
}

QList<BackupFile> backupsIn(const QString& folder)
{
    QList<BackupFile> backups;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        if (const QDateTime made = timeIn(file.fileName()); made.isValid())
            backups.append(describe(file, made));
    }
    return backups;
}

QList<BackupFile> copiesOfMigrations(const QFileInfo& store)
{
    QList<BackupFile> backups;
    for (const QFileInfo& file : store.dir().entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        const QString name = file.fileName();
        if (name.startsWith(store.fileName() + ".before-"_L1) && !name.contains(".new-"_L1)) {
            backups.append(describe(file, file.lastModified()));
            backups.last().isBeforeMigration = true;
        }
    }
    return backups;
}

} // namespace

BackupFolder::BackupFolder(const QString& storePath)
    : m_storePath(storePath)
    , m_path(QFileInfo(storePath).path() + "/Backups"_L1)
{
}

QList<BackupFile> BackupFolder::backups() const
{
    QList<BackupFile> backups = backupsIn(m_path) + copiesOfMigrations(QFileInfo(m_storePath));
    std::ranges::sort(backups, [](const BackupFile& a, const BackupFile& b) {
        return std::tie(a.made, a.path) > std::tie(b.made, b.path);
    });
    return backups;
}

BackupFile BackupFolder::make(const QDateTime& now, const std::stop_token& stop) const
{
    try {
        makeFolder(m_path);
        const QString draftPath = m_path + "/Pellory.store"_L1;
        Draft::removeAbandoned(draftPath);
        Draft draft(draftPath);
        copyAndVerify(m_storePath, draft, stop);
        const QString path = takeName(draft, m_path, now);
        return describe(QFileInfo(path), now);
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
}

void BackupFolder::thin(const QDateTime& now) const
{
    const QList<BackupFile> backups = backupsIn(m_path);
    QList<QDateTime> times;
    for (const BackupFile& backup : backups)
        times.append(backup.made);
    const QList<QDateTime> kept = keptBackups(times, now);
    for (const BackupFile& backup : backups) {
        if (!kept.contains(backup.made))
            QFile::remove(backup.path);
    }
}
