// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLists.h"
#include "StoreFile.h"
#include "StoreTest.h"

#include <thread>

using testing::HasSubstr;

class ModelContainerTest : public StoreTest {};

TEST_F(ModelContainerTest, saysWhyAStoreIsRefusedAndLeavesItAlone)
{
    const std::pair<const char*, const char*> rows[]{
        {"PRAGMA application_id = 1", "not a data store of Pellory"},
        {"PRAGMA user_version = 0", "unknown format"},
        {"DROP TABLE month", "lacks \"month\""},
        {"DROP INDEX month_by_period", "lacks \"month_by_period\""},
        {"ALTER TABLE goal ADD COLUMN more TEXT", "\"goal\" in the data store is not defined as expected"},
        {"UPDATE month SET days = '[]' WHERE pk = 2", "damaged: record 2 of \"month\""},
        {"UPDATE goal SET description = '' WHERE pk = 1", "damaged: record 1 of \"goal\""},
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
    setBytes(sound);
    const std::string days = encodedDays(Month(2026, 2).days.value().first(37));
    const auto sum = std::to_string(checksum({2026, 2, "February", 28, days}));
    connection().exec("UPDATE month SET days = '" + days + "', checksum = " + sum + " WHERE pk = 2");
    EXPECT_THROW(static_cast<void>(stored()), StoreError) << "a cell is missing, though the checksum is right";
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
    EXPECT_TRUE(stored().empty());
}

TEST_F(StoreFileTest, isNewWhateverIsLeftOfAnotherOne)
{
    putSample();
    auto other = connection();
    other.exec("PRAGMA cache_size = 1; BEGIN; DROP TABLE month; CREATE TABLE other AS SELECT zeroblob(90000)");
    const QByteArray journal = bytes(u"-journal"_s);
    for (int i = 0; i < 2; ++i) {
        QFile::remove(path);
        setBytes(journal, u"-journal"_s);
        setBytes("of a killed start", u".new-aBc123"_s);
        setBytes("of the person", u".new-copy"_s);
        EXPECT_TRUE(stored().empty());
    }
    EXPECT_EQ(files(), (QStringList{u"Pellory.store"_s, u"Pellory.store-journal.old"_s,
                                    u"Pellory.store-journal.old-2"_s, u"Pellory.store.new-copy"_s}));
    EXPECT_EQ(bytes(u"-journal.old-2"_s), journal);
}

TEST_F(StoreFileTest, isMadeForItsOwnerAloneAndStaysInAClosedFolder)
{
    setFolderWritable(false);
    EXPECT_THAT(refusal(), HasSubstr("Pellory.store cannot be created"));
    setFolderWritable(true);
    EXPECT_TRUE(stored().empty());
    EXPECT_EQ(int(QFile::permissions(path) & 0x77), 0); // nothing for group and others
    setFolderWritable(false);
    EXPECT_THROW(removeStoreFile(path), StoreError);
    setFolderWritable(true);
    EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
}
