// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreReplacement.h"

#include "BackupContents.h"
#include "BackupCopy.h"
#include "Connection.h"
#include "Draft.h"
#include "Schema.h"
#include "StoreError.h"
#include "Verification.h"

#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <filesystem>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

StoreReplacement::StoreReplacement(const QString& path)
    : m_path(path)
    , m_draft(path + ".new-XXXXXX"_L1)
{
    Draft::removeAbandoned(path);
    // Which has no name yet if this fails.
    if (!m_draft.open())
        throw StoreError(StoreError::tr("The file %1 cannot be created: %2.").arg(path, m_draft.errorString()));
}

void StoreReplacement::copyFrom(SQLite::Database& source)
{
    SQLite::Statement copy(source, "VACUUM INTO ?");
    copy.bind(1, draftName());
    copy.exec();
}

void StoreReplacement::copyBackup(const QString& path)
{
    static_cast<void>(readBackup(path));
    try {
        SQLite::Database backup = connectUnlocked(path);
        copyFrom(backup);
        SQLite::Database draft(draftName(), SQLite::OPEN_READWRITE);
        static_cast<void>(verifyStore(draft, pellorySchema()));
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
    fsync(m_draft.handle());
}

void StoreReplacement::copyWhatLiesThere(const Schema& schema)
{
    try {
        SQLite::Database there = connectToStore(m_path.toStdString(), saveLockTimeout);
        if (verifyStore(there, schema) == schema.version())
            return copyFrom(there);
    } catch (const StoreError&) {
        // It cannot be read, so there is nothing to start with.
    } catch (const SQLite::Exception&) {
        // Nor here.
    }
    m_draft.resize(0);
    SQLite::Database draft(draftName(), SQLite::OPEN_READWRITE);
    createSchema(draft, schema);
}

void StoreReplacement::putInPlace()
{
    putAside();
    std::error_code error;
    fs::rename(draftName(), m_path.toStdString(), error);
    if (error)
        throw StoreError(QString::fromStdString(error.message()));
    m_draft.setAutoRemove(false);
    synchroniseFolder(QFileInfo(m_path).path());
}

// A second name first, so that at every moment there is a store in its place.
void StoreReplacement::putAside()
{
    const std::string path = m_path.toStdString();
    const auto named = [&](int number) {
        return path + ".replaced" + (number > 1 ? '-' + std::to_string(number) : std::string());
    };
    int number = 1;
    while (fs::exists(fs::symlink_status(named(number))))
        ++number;
    std::error_code error;
    if (fs::exists(path))
        fs::create_hard_link(path, named(number), error);
    if (error) // not every file system has such links
        fs::copy_file(path, named(number), error);
    // A journal belongs to the store that it was made for.
    if (!error && fs::exists(path + "-journal"))
        fs::rename(path + "-journal", named(number) + "-journal", error);
    if (error)
        throw StoreError(QString::fromStdString(error.message()));
}
