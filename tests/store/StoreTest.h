// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "JsonLists.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "Testing.h"

#include <QDebug>
#include <QDir>
#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <iostream>
#include <random>

/// How many times as much as usual is asked of a test that kills or damages.
inline const int torture = std::max(1, qEnvironmentVariableIntValue("PELLORY_TORTURE"));

/// Random numbers, others in every run. A run is repeated by its seed in the environment.
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
    [[nodiscard]] std::unique_ptr<ModelContainer> open(int lockTimeout = 5000) const
    {
        return std::make_unique<ModelContainer>(ModelConfiguration{u"Example"_s, path, lockTimeout});
    }

    /// Why the store does not open; empty when it does.
    [[nodiscard]] std::string refusal(int lockTimeout = 5000) const
    {
        try {
            static_cast<void>(open(lockTimeout));
            return {};
        } catch (const StoreError& error) {
            return error.description().toStdString();
        }
    }

    [[nodiscard]] QStringList stored() const { return contents(open()->mainContext()); }

    /// A connection past the store's own.
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

    /// Stores January to March, two goals, and settings.
    void putSample() const
    {
        const auto container = open();
        for (int number = 1; number <= 3; ++number) {
            const auto month = std::make_shared<Month>(2026, number);
            mark(*month, number, DayState::IN_OFFICE);
            container->mainContext().insert(month);
        }
        const auto settings = std::make_shared<AppSettings>();
        settings->daysPerWeekGoals = {Goal::create(u"2.5"_s, u"Team days"_s), Goal::create(u"4"_s, {})};
        settings->inOfficeSsids = {u"Office"_s, u"Office 5G"_s};
        container->mainContext().insert(settings);
    }

    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    // In memory where that is possible, for thousands of stores are written.
    const QTemporaryDir folder{(QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm"_s : QDir::tempPath()) +
                               u"/pellory-XXXXXX"_s};
    const QString path = folder.filePath(u"Pellory.store"_s);
};
