// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordFields.h"
#include "StoreFile.h"
#include "StoreTest.h"

#include <SQLiteCpp/Statement.h>

#include <thread>

using testing::HasSubstr;

class ModelContainerTest : public StoreTest {};

TEST_F(ModelContainerTest, readsAndWritesEachRowOfTheReleasedProgram)
{
    putSample();
    const auto container = open();
    auto database = connection();
    const auto check = [&](const auto& fields) {
        SQLite::Statement rows(database, fields.layout().selectSql());
        while (rows.executeStep()) {
            const Row row = readRow(rows, fields.layout());
            EXPECT_EQ(fields.row(*fields.record(row)), row);
        }
    };
    check(monthFields());
    check(goalFields());
    check(settingsFields([&] { return container->mainContext().fetchGoals(); }));
}

TEST_F(ModelContainerTest, saysWhyAStoreIsRefusedAndLeavesItAlone)
{
    const std::pair<const char*, const char*> rows[]{
        {"PRAGMA application_id = 1", "not a data store of Pellory"},
        {"PRAGMA user_version = 2", "newer version"},
        {"PRAGMA user_version = 0", "unknown format"},
        {"DROP TABLE month", "lacks \"month\""},
        {"DROP TABLE app_settings", "lacks \"app_settings\""},
        {"DROP INDEX month_by_period", "lacks \"month_by_period\""},
        {"ALTER TABLE goal ADD COLUMN more TEXT", "\"goal\" in the data store is not defined as expected"},
        {"UPDATE month SET days = '[]' WHERE pk = 2", "damaged: record 2 of \"month\""},
        {"UPDATE goal SET description = '' WHERE pk = 1", "damaged: record 1 of \"goal\""},
        {"UPDATE app_settings SET checksum = checksum + 1", "checksum"},
        {"DELETE FROM goal WHERE pk = 1", "is missing"},
    };
    putSample();
    const QByteArray sound = bytes();
    for (const auto& [sql, reason] : rows) {
        SCOPED_TRACE(sql);
        setBytes(sound);
        connection().exec(sql);
        const QByteArray damaged = bytes();
        EXPECT_THAT(refusal(), HasSubstr(reason));
        EXPECT_TRUE(bytes() == damaged);
    }
}

TEST_F(ModelContainerTest, refusesAnImpossibleDayListThoughItsChecksumIsRight)
{
    putSample();
    for (const std::string& days : {encodedDays(Month(2026, 2).days.value().first(37)), std::string("no JSON")}) {
        const auto database = connection();
        SQLite::Statement month(database, "UPDATE month SET days = ?, checksum = ? WHERE pk = 2");
        month.bind(1, days);
        month.bind(2, checksum({2026, 2, "February", 28, days}));
        ASSERT_EQ(month.exec(), 1);
        EXPECT_THROW(static_cast<void>(stored()), StoreError) << days;
    }
}

TEST_F(ModelContainerTest, waitsForAnotherProgramAndThenGivesUp)
{
    putSample();
    auto other = connection();
    other.exec("BEGIN EXCLUSIVE");
    EXPECT_THAT(refusal(pellorySchema(), 50), HasSubstr("in use by another program"));
    const std::jthread release([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        other.exec("COMMIT");
    });
    EXPECT_EQ(refusal(pellorySchema(), 60'000), "");
}

class StoreFileTest : OrdinaryUser, public StoreTest {};

TEST_F(StoreFileTest, removalTakesTheStoreWithItsSideFilesAndNothingElse)
{
    putSample();
    for (const auto& suffix : {u"-journal"_s, u"-wal"_s, u"-shm"_s, u"-journal2"_s, u".bak"_s})
        EXPECT_TRUE(QFile(path + suffix).open(QFile::WriteOnly));
    removeStoreFile(path);
    EXPECT_EQ(files(), (QStringList{u"Pellory.store-journal2"_s, u"Pellory.store.bak"_s}));
    removeStoreFile(path);
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(StoreFileTest, isMadeForItsOwnerAloneAndStaysInAClosedFolder)
{
    setFolderWritable(false);
    EXPECT_THAT(refusal(), HasSubstr("cannot be created"));
    setFolderWritable(true);
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_EQ(int(QFile::permissions(path) & 0x77), 0); // nothing for group and others
    setFolderWritable(false);
    EXPECT_THROW(removeStoreFile(path), StoreError);
    setFolderWritable(true);
    EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
}
