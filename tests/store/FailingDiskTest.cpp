// SPDX-License-Identifier: GPL-3.0-or-later
#include "FailingDisk.h"
#include "StoreTest.h"

#include <QCoreApplication>

#include <functional>

namespace {

constexpr void (*retries[])(std::unique_ptr<ModelContainer>&){
    [](auto& container) { EXPECT_TRUE(container->mainContext().save()); },
    [](auto&) { QCoreApplication::processEvents(); },
    [](auto& container) { container.reset(); },
};

} // namespace

class FailingDiskTest : OrdinaryUser, public StoreTest {
protected:
    /// Changes of all kinds, in several pages.
    static void change(ModelContext& context)
    {
        mark(*context.fetchMonths(2026, 3).first(), 31, DayState::WILL_BE_IN_OFFICE);
        for (int month = 4; month <= 12; ++month)
            context.insert(std::make_shared<Month>(2026, month));
        context.remove(context.fetchMonths(2026, 1).first());
        context.append(exampleChange());
        context.remove(context.records<DayOff>().first());
        addSmallRecords(context);
    }

    /// Puts an obstacle in the way of writing, or removes it.
    using Obstacle = std::function<void(bool)>;

    /// Whether changes are saved behind an obstacle. Then makes one more without it, which `retry` saves.
    [[nodiscard]] bool isSavedBehind(const Obstacle& obstruct, std::size_t retry, bool isReadable = true) const
    {
        putSample();
        const auto before = stored();
        auto container = open();
        ModelContext& context = container->mainContext();
        change(context);
        const auto changed = contents(context);

        obstruct(true);
        testing::internal::CaptureStderr();
        const bool isSaved = context.save();
        EXPECT_TRUE(!isSaved || FailingDisk::isSynced()) << "a power cut would undo the save";
        QCoreApplication::processEvents();
        const auto logged = QString::fromStdString(testing::internal::GetCapturedStderr());
        EXPECT_EQ(logged.count(u"Could not save"), isSaved ? 0 : 1) << "not again in the same turn";
        EXPECT_EQ(context.hasChanges(), !isSaved);
        const auto& durable = isSaved ? changed : before;
        EXPECT_TRUE(!isReadable || stored() == durable);
        obstruct(false);
        EXPECT_EQ(stored(), durable);
        EXPECT_EQ(contents(context), changed);

        mark(*context.fetchMonths(2026, 3).first(), 30, DayState::OUT_OF_OFFICE);
        const auto wanted = contents(context);
        retries[retry % std::size(retries)](container);
        EXPECT_EQ(stored(), wanted);
        return isSaved;
    }

    FailingDisk disk;
};

TEST_F(FailingDiskTest, aStoreThatIsReadOnlyWhenOpenedIsSavedOnceItIsWritable)
{
    putSample();
    QFile::setPermissions(path, QFile::ReadOwner);
    const auto container = open();
    ModelContext& context = container->mainContext();
    change(context);
    EXPECT_FALSE(context.save() || context.save());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(context.save());
    EXPECT_EQ(stored(), contents(context));
}

TEST_F(FailingDiskTest, aClosedFolderOrALockDamagesNothingAndTheMarkIsTriedAgain)
{
    std::unique_ptr<SQLite::Database> other;
    const auto lock = [&](bool isLocked) {
        other = isLocked ? std::make_unique<SQLite::Database>(connection()) : nullptr;
        if (isLocked)
            other->exec("BEGIN IMMEDIATE");
    };
    EXPECT_FALSE(isSavedBehind([this](bool isClosed) { setFolderWritable(!isClosed); }, 0));
    EXPECT_FALSE(isSavedBehind(lock, 1));
}

TEST_F(FailingDiskTest, noFaultDuringAMarkDamagesAnything)
{
    std::size_t attempt = 0;
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failures, [&] {
        const bool isSaved = isSavedBehind(FailingDisk::arm, attempt++, false);
        EXPECT_NE(isSaved, FailingDisk::hasStruck());
    });
    EXPECT_THAT(calls, testing::ElementsAre(1, testing::Ge(20), testing::Ge(3), 0, 1, 0));
}

TEST_F(FailingDiskTest, noKillDamagesAnythingOrLosesWhatWasSaved)
{
    putSample();
    change(open()->mainContext());
    const auto changed = stored();
    FailingDisk::strikeEverywhere({FailingDisk::Kill}, [&] {
        putSample();
        const auto before = stored();
        // Only save() may save: the container is not destroyed.
        FailingDisk::run([this] {
            ModelContext& context = open().release()->mainContext();
            change(context);
            context.save();
        });
        const auto now = stored();
        EXPECT_TRUE(now == changed || (now == before && FailingDisk::hasStruck()));
    });
}

TEST_F(FailingDiskTest, noFaultLeavesHalfANewStore)
{
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failures, [&] {
        QFile::remove(path);
        std::string reason;
        FailingDisk::run([&] { reason = refusal(); });
        EXPECT_EQ(reason.empty(), !FailingDisk::hasStruck());
        open()->mainContext().insert(std::make_shared<AppSettings>());
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
        EXPECT_EQ(stored().size(), 1 + 3);
    });
    EXPECT_THAT(calls, testing::ElementsAre(2, testing::Ge(5), testing::Ge(1), 0, 0, 0));
}

TEST_F(FailingDiskTest, noFaultOrKillDuringARecoveryLosesTheStore)
{
    putSample();
    const auto before = stored();
    auto halfway = connection();
    halfway.exec("PRAGMA cache_size = 1; BEGIN; DROP TABLE month; CREATE TABLE other AS SELECT zeroblob(90000)");
    const QByteArray store = bytes();
    const QByteArray journal = bytes(u"-journal"_s);
    halfway.exec("ROLLBACK");
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failuresAndKill, [&] {
        setBytes(store);
        setBytes(journal, u"-journal"_s);
        std::string reason;
        FailingDisk::run([&] { reason = refusal(); });
        EXPECT_TRUE(reason.empty() || FailingDisk::hasStruck());
        EXPECT_EQ(stored(), before);
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
    });
    EXPECT_THAT(calls, testing::Each(testing::Gt(0)));
}
