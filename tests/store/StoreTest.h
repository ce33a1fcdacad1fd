// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "RecordFields.h"
#include "ReleasedStore.h"
#include "Schema.h"
#include "StoreError.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <algorithm>

/// Every record that a context knows, as it is stored.
inline std::vector<Row> contents(ModelContext& context)
{
    std::vector<Row> rows;
    const auto add = [&rows](const auto& fields, const auto& records) {
        for (const auto& record : records)
            rows.push_back(fields.row(*record));
    };
    add(monthFields(), context.fetchMonths());
    add(goalFields(), context.fetchGoals());
    add(settingsFields(), context.fetchSettings());
    std::ranges::sort(rows);
    return rows;
}

/// A store in a folder of its own.
class StoreTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<ModelContainer> open(const Schema& schema = pellorySchema(),
                                                       int lockTimeout = 5000) const
    {
        return std::make_unique<ModelContainer>(ModelConfiguration{u"Example"_s, path, lockTimeout}, schema);
    }

    /// Why the store does not open; empty if it does.
    [[nodiscard]] std::string refusal(const Schema& schema = pellorySchema(), int lockTimeout = 5000) const
    {
        try {
            static_cast<void>(open(schema, lockTimeout));
            return {};
        } catch (const StoreError& error) {
            return error.description().toStdString();
        }
    }

    [[nodiscard]] std::vector<Row> stored() const { return contents(open()->mainContext()); }

    /// A connection beside the store's own.
    [[nodiscard]] SQLite::Database connection() const { return {path.toStdString(), SQLite::OPEN_READWRITE}; }

    /// Of the store, or of a file beside it.
    [[nodiscard]] QByteArray bytes(const QString& suffix = {}) const
    {
        QFile file(path + suffix);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    void setBytes(const QByteArray& data, const QString& suffix = {}) const
    {
        QFile file(path + suffix);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(data) == data.size());
    }

    void setFolderWritable(bool isWritable) const
    {
        QFile::setPermissions(folder.path(), isWritable ? QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                        : QFile::ReadOwner | QFile::ExeOwner);
    }

    /// Puts the released program's store in the place of whatever is there.
    void putSample() const
    {
        QFile::remove(path);
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(releasedStore);
    }

    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    const QTemporaryDir folder{inMemory};
    const QString path = folder.filePath(u"Pellory.store"_s);
};
