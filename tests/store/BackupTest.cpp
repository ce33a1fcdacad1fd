// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupContents.h"
#include "BackupFolder.h"
#include "FailingDisk.h"
#include "KeptBackups.h"
#include "StoreReplacement.h"
#include "StoreTest.h"

#include <random>

#include <dlfcn.h>

// In the place of the system's own, so that the program can be killed before each of them.
extern "C" {
int rename(const char* from, const char* to) noexcept
{
    FailingDisk::killBeforeName();
    return reinterpret_cast<decltype(&rename)>(dlsym(RTLD_NEXT, "rename"))(from, to);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    FailingDisk::killBeforeName();
    return reinterpret_cast<decltype(&renameat2)>(dlsym(RTLD_NEXT, "renameat2"))(fromFolder, from, toFolder, to, flags);
}
int unlink(const char* name) noexcept
{
    FailingDisk::killBeforeName();
    return reinterpret_cast<decltype(&unlink)>(dlsym(RTLD_NEXT, "unlink"))(name);
}
}

TEST(KeptBackupsTest, areTheNewestOfEachPeriodForAnySequenceOfDays)
{
    using Period = QDate (*)(QDate);
    const std::pair<qsizetype, Period> rules[]{{1, [](QDate) { return QDate(); }},
                                               {7, [](QDate date) { return date; }},
                                               {5, [](QDate date) { return date.addDays(-date.dayOfWeek()); }},
                                               {12, [](QDate date) { return date.addDays(-date.day()); }}};
    std::mt19937 random(std::random_device{}());
    QDateTime now(QDate(2026, 1, 1), QTime(9, 0));
    QList<QDateTime> made;
    QList<QDateTime> kept;
    for (int step = 0; step < 500; ++step) {
        now = now.addSecs(3600 * (1 + random() % (random() % 3 == 0 ? 960 : 40)));
        made.prepend(now);
        kept = keptBackups(kept << now, now);
        QSet<QDateTime> expected;
        for (const auto& [count, period] : rules) {
            QMap<QDate, QDateTime> newest; // of the last periods
            for (auto time = made.begin(); time != made.end() && newest.size() <= count; ++time) {
                if (time->date() == now.date() || (!newest.contains(period(time->date())) && newest.size() < count))
                    expected.insert(newest[period(time->date())] = *time);
            }
        }
        ASSERT_EQ(QSet<QDateTime>(kept.begin(), kept.end()), expected) << now.toString().toStdString();
    }
    EXPECT_EQ(keptBackups(kept, kept.at(5)).first(5), kept.first(5)) << "what lies in the future stays";
}

class BackupTest : OrdinaryUser, public StoreTest {
protected:
    BackupTest() { putSample(); }

    [[nodiscard]] DayStates states() const
    {
        EXPECT_EQ(refusal(), "");
        return readStore(path);
    }
    [[nodiscard]] QString fileOf(const QString& time) const
    {
        return backups.path() + "/Pellory "_L1 + time + ".store"_L1;
    }
    const BackupFolder backups{path};
    const QDateTime now{QDate(2026, 3, 9), QTime(9, 15)};
    FailingDisk disk;
};

TEST_F(BackupTest, needsNoLockAndLeavesEverythingElseAlone)
{
    putReleased();
    const DayStates old = readBackup(path); // of version 1
    EXPECT_EQ(old, states());
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Backups"_s));
    const QString draft = backups.path() + "/Pellory.store.new-abcdef"_L1;
    const QStringList foreign{backups.path() + "/notes.txt"_L1, fileOf(u"2026-02-30 09.15.00"_s)};
    const QString future = fileOf(u"2027-01-01 00.00.00"_s);
    for (const QString& file : foreign + QStringList{draft, future})
        EXPECT_TRUE(QFile(file).open(QFile::WriteOnly));
    ASSERT_TRUE(QFile::link(path, fileOf(u"2026-01-01 00.00.00"_s)));

    connection().exec("INSERT INTO day_change (network) VALUES ('damaged')");
    const QByteArray before = bytes();
    auto other = connection();
    other.exec("BEGIN EXCLUSIVE");
    const QString first = fileOf(u"2026-03-09 09.15.00"_s);
    const QString second = fileOf(u"2026-03-09 09.15.00 (2)"_s);
    EXPECT_EQ(backups.make(now).path, first);
    EXPECT_EQ(backups.make(now).path, second);
    other.exec("ROLLBACK");
    EXPECT_EQ(readBackup(first), old);
    EXPECT_EQ(int(QFile::permissions(first) & 0x77), 0); // nothing for group and others
    EXPECT_TRUE(bytes() == before);
    EXPECT_FALSE(QFile::exists(draft));
    EXPECT_THAT(foreign, testing::Each(testing::Truly([](const auto& file) { return QFile::exists(file); })));
    QStringList listed;
    for (const BackupFile& backup : backups.backups())
        listed.append(backup.path);
    EXPECT_THAT(listed, testing::UnorderedElementsAre(future, second, first, path + ".before-4"_L1));

    connection().exec("UPDATE month SET name = 'x'");
    EXPECT_THROW(backups.make(now), StoreError);
    SQLite::Database(first.toStdString(), SQLite::OPEN_READWRITE).exec("DELETE FROM goal WHERE pk = 1");
    EXPECT_THROW((void)readBackup(first), StoreError);
}

TEST_F(BackupTest, neverMakesASaveFailAndIsNeverAMixture)
{
    const auto container = open();
    ModelContext& context = container->mainContext();
    int saves = 0;
    const auto save = [&] {
        const DayState state = saves % 2 == 0 ? DayState::VACATION_DAY : DayState::IN_OFFICE;
        mark(*context.fetchMonths(2026, 3).first(), 1 + saves++ % 27, state); // each save changes something
        EXPECT_TRUE(context.save());
    };
    FailingDisk::beforeWrite = save;
    const BackupFile made = backups.make(now);
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(readBackup(made.path), readStore(path));

    const std::function<void()> saveAgain = [&] {
        save();
        FailingDisk::beforeWrite = saveAgain;
    };
    FailingDisk::beforeWrite = saveAgain;
    EXPECT_THROW(backups.make(now), StoreError);
    FailingDisk::beforeWrite = {};
    EXPECT_EQ(backups.backups().size(), 1);
}

TEST_F(BackupTest, noFaultOrKillOfAReplacementCostsTheStoreOrTheBackup)
{
    const BackupFile backup = backups.make(now);
    const DayStates old = states();
    mark(*open()->mainContext().fetchMonths(2026, 3).first(), 12, DayState::VACATION_DAY);
    const QByteArray before = bytes();
    const QString kept = u".replaced"_s;
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failuresAndKill, [&] {
        QFile::remove(path + kept);
        setBytes(before);
        FailingDisk::run([&] {
            try {
                StoreReplacement replacement(path);
                replacement.copyBackup(backup.path);
                replacement.putInPlace();
            } catch (const StoreError& error) {
                EXPECT_TRUE(FailingDisk::hasStruck()) << error.what();
            }
        });
        const bool isReplaced = bytes() != before;
        EXPECT_TRUE(isReplaced || FailingDisk::hasStruck());
        EXPECT_TRUE(!isReplaced || (states() == old && bytes(kept) == before));
        EXPECT_EQ(readBackup(backup.path), old);
    });
    EXPECT_GE(calls.at(FailingDisk::Name), 2);
}

TEST_F(BackupTest, noFaultOrKillCostsTheStoreOrAnOlderBackup)
{
    const DayStates old = states();
    const auto older = backups.make(now.addDays(-1));
    const QByteArray before = bytes();
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failuresAndKill, [&] {
        EXPECT_TRUE(QFile::copy(older.path, fileOf(u"2026-03-08 08.00.00"_s)));
        FailingDisk::run([&] {
            try {
                backups.make(now);
                backups.thin(now);
            } catch (const StoreError& error) {
                EXPECT_FALSE(error.description().isEmpty());
            }
        });
        EXPECT_TRUE(bytes() == before);
        const auto left = backups.backups();
        EXPECT_THAT(left, testing::Contains(older));
        EXPECT_GE(left.size(), 2); // with a new one, one that is not kept any more, or both
        for (const BackupFile& backup : left) {
            EXPECT_EQ(readBackup(backup.path), old);
            if (backup != older)
                QFile::remove(backup.path);
        }
    });
    EXPECT_THAT(calls, testing::ElementsAre(testing::Ge(3), testing::Ge(5), 0, 0, testing::Ge(1), testing::Ge(2)));
    backups.make(now);
    EXPECT_EQ(QDir(backups.path()).entryList(QDir::Files).size(), 2) << "no draft is left";

    QDir(backups.path()).removeRecursively();
    setFolderWritable(false);
    EXPECT_THROW(backups.make(now), StoreError);
    setFolderWritable(true);
}
