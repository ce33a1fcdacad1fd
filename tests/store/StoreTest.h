// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "JsonLists.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "ReleasedStore.h"
#include "Schema.h"
#include "StoreError.h"
#include "Testing.h"

#include <QDebug>
#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <iostream>
#include <random>

/// How many times as much as usual is asked of a test that kills or damages.
inline const int torture = std::max(1, qEnvironmentVariableIntValue("PELLORY_TORTURE"));

/// Random numbers, different in every run. A run is repeated by its seed in the environment.
inline std::mt19937 randomNumbers()
{
    const unsigned given = qEnvironmentVariable("PELLORY_SEED").toUInt();
    const unsigned seed = given != 0 ? given : std::random_device()();
    std::cout << "PELLORY_SEED=" << seed << std::endl;
    return std::mt19937(seed);
}

/// Every field of every record that a context knows.
inline QStringList contents(ModelContext& context)
{
    const auto line = [](const auto&... fields) {
        QString text;
        (QDebug(&text) << ... << fields.value());
        return text;
    };
    QStringList lines;
    for (const auto& month : context.fetchMonths())
        lines += line(month->year, month->month, month->name, month->daysInMonth) +
                 QString::fromStdString(encodedDays(month->days));
    for (const auto& goal : context.fetchGoals())
        lines += goal->id.toString() + line(goal->wantedDaysPerWeek, goal->desc);
    for (const auto& settings : context.fetchSettings()) {
        lines +=
            line(settings->inOfficeSsids, settings->firstTime, settings->wifiTrackingEnabled,
                 settings->vacationDaysCountAsInOffice, settings->notificationsEnabled, settings->checkEveryInMinutes);
        for (const auto& goal : settings->daysPerWeekGoals.value())
            lines.last() += goal->id.toString();
    }
    lines.sort();
    return lines;
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

    [[nodiscard]] QStringList stored() const { return contents(open()->mainContext()); }

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
