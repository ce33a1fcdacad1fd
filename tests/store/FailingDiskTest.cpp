// SPDX-License-Identifier: GPL-3.0-or-later
#include "FailingDisk.h"
#include "StoreTest.h"

#include <QCoreApplication>

#include <functional>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

namespace {

constexpr void (*retries[])(std::unique_ptr<ModelContainer>&){
    [](auto& container) { EXPECT_TRUE(container->mainContext().save()); },
    [](auto&) { QCoreApplication::processEvents(); },
    [](auto& container) { container.reset(); },
};

/// Puts an empty file system over a folder that only this process sees. False where that is not allowed.
bool mountOwn(const char* folder)
{
    const auto put = [](const QString& name, const std::string& text) {
        QFile file(u"/proc/self/"_s + name);
        return file.open(QFile::WriteOnly | QFile::Unbuffered) && file.write(text.data()) > 0;
    };
    static_cast<void>(setresuid(0, 0, 0)); // root may do it even where others may not
    prctl(PR_SET_DUMPABLE, 1);             // lost with a change of the user; the files in /proc are root's without it
    const std::string user = "0 " + std::to_string(geteuid()) + " 1";
    const std::string group = "0 " + std::to_string(getegid()) + " 1";
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && put(u"uid_map"_s, user) && put(u"setgroups"_s, "deny") &&
           put(u"gid_map"_s, group) && mount("none", folder, "tmpfs", 0, "size=256k") == 0;
}

} // namespace

class FailingDiskTest : OrdinaryUser, public StoreTest {
protected:
    /// Puts something in the way, or takes it away.
    using Obstacle = std::function<void(bool)>;

    /// Whether changes of two kinds are saved behind an obstacle. Then makes one more without it, which `retry` saves.
    [[nodiscard]] bool isSavedBehind(const Obstacle& obstruct, std::size_t retry, bool isReadable = true) const
    {
        QFile::remove(path);
        putSample();
        const QStringList before = stored();
        auto container = open();
        ModelContext& context = container->mainContext();
        const auto march = context.fetchMonths(2026, 3).first();
        mark(*march, 31, DayState::WILL_BE_IN_OFFICE);
        for (int month = 4; month <= 12; ++month)
            context.insert(std::make_shared<Month>(2026, month));
        const QStringList changed = contents(context);

        obstruct(true);
        testing::internal::CaptureStderr();
        const bool isSaved = context.save();
        QCoreApplication::processEvents();
        const auto said = QString::fromStdString(testing::internal::GetCapturedStderr());
        EXPECT_EQ(said.count(u"Could not save"), isSaved ? 0 : 1) << "not again in the same turn";
        EXPECT_EQ(context.hasChanges(), !isSaved);
        const QStringList durable = isSaved ? changed : before;
        EXPECT_TRUE(!isReadable || stored() == durable);
        obstruct(false);
        EXPECT_EQ(stored(), durable);
        EXPECT_EQ(contents(context), changed);

        mark(*march, 30, DayState::OUT_OF_OFFICE);
        const QStringList wanted = contents(context);
        retries[retry % std::size(retries)](container);
        EXPECT_EQ(stored(), wanted);
        return isSaved;
    }

    /// Changes a store that cannot be written when it is opened, and then can.
    void checkReadOnly(const Obstacle& setReadOnly) const
    {
        putSample();
        setReadOnly(true);
        const auto container = open();
        ModelContext& context = container->mainContext();
        const auto march = context.fetchMonths(2026, 3).first();
        for (const DayState state : {DayState::IN_OFFICE, DayState::VACATION_DAY}) {
            mark(*march, 31, state);
            EXPECT_FALSE(context.save());
        }
        setReadOnly(false);
        EXPECT_TRUE(context.save());
        EXPECT_EQ(stored(), contents(context));
        EXPECT_EQ(context.fetchMonths(2026, 3), QList{march});
    }

    FailingDisk disk;
};

TEST_F(FailingDiskTest, aClosedStoreDamagesNothingAndTheMarkIsTriedAgain)
{
    checkReadOnly([this](bool isReadOnly) {
        QFile::setPermissions(path, isReadOnly ? QFile::ReadOwner : QFile::ReadOwner | QFile::WriteOwner);
    });
    std::unique_ptr<SQLite::Database> other;
    const auto lock = [&](bool isLocked) {
        other = isLocked ? std::make_unique<SQLite::Database>(connection()) : nullptr;
        if (isLocked)
            other->exec("BEGIN IMMEDIATE");
    };
    for (const std::size_t retry : {0, 1, 2}) {
        EXPECT_FALSE(isSavedBehind([this](bool isClosed) { setFolderWritable(!isClosed); }, retry));
        EXPECT_FALSE(isSavedBehind(lock, retry));
    }
}

TEST_F(FailingDiskTest, aFullOrReadOnlyFileSystemDamagesNothing)
{
    constexpr int isNotAllowed = 77;
    const auto inOwnMounts = [this] {
        const std::string at = folder.path().toStdString();
        if (!mountOwn(at.data()))
            _exit(isNotAllowed);
        checkReadOnly([&](bool isReadOnly) {
            const unsigned long flags = MS_REMOUNT | MS_BIND | (isReadOnly ? MS_RDONLY : 0);
            EXPECT_EQ(mount(nullptr, at.data(), nullptr, flags, nullptr), 0);
        });
        QFile filler(folder.filePath(u"filler"_s));
        std::size_t freePages = 0;
        const auto fill = [&](bool isFull) {
            if (!isFull)
                return static_cast<void>(filler.remove());
            EXPECT_TRUE(filler.open(QFile::WriteOnly | QFile::Unbuffered));
            while (filler.write(QByteArray(4096, 'x')) == 4096) {
            }
            EXPECT_TRUE(filler.resize(filler.size() - 4096 * static_cast<qint64>(freePages)));
        };
        while (freePages < 40 && !isSavedBehind(fill, freePages))
            ++freePages;
        EXPECT_TRUE(freePages > 5 && freePages < 40) << freePages;
        _exit(HasFailure() ? EXIT_FAILURE : EXIT_SUCCESS);
    };
    const pid_t child = fork();
    if (child == 0)
        inOwnMounts();
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(status == 0 || WEXITSTATUS(status) == isNotAllowed) << status;
    if (status != 0)
        GTEST_SKIP() << "a file system cannot be mounted here, not even in a user namespace";
}

TEST_F(FailingDiskTest, noFaultDuringAMarkDamagesAnything)
{
    std::size_t attempt = 0;
    const auto calls = FailingDisk::failEverywhere([&] {
        const bool isSaved = isSavedBehind(FailingDisk::arm, attempt++, false);
        EXPECT_NE(isSaved, FailingDisk::hasStruck());
    });
    EXPECT_THAT(calls, testing::ElementsAre(1, testing::Ge(20), testing::Ge(3), 0, 1));
}

TEST_F(FailingDiskTest, noFaultLeavesHalfANewStore)
{
    const auto calls = FailingDisk::failEverywhere([&] {
        QFile::remove(path);
        FailingDisk::arm(true);
        const bool isOpened = refusal().empty();
        FailingDisk::arm(false);
        EXPECT_NE(isOpened, FailingDisk::hasStruck());
        putSample();
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
        EXPECT_FALSE(stored().isEmpty());
    });
    EXPECT_THAT(calls, testing::ElementsAre(2, testing::Ge(5), testing::Ge(1), 0, 0));
}

TEST_F(FailingDiskTest, noFaultDuringARecoveryLosesTheStore)
{
    putSample();
    const QStringList before = stored();
    auto halfway = connection();
    halfway.exec("PRAGMA cache_size = 1; BEGIN; DROP TABLE month; CREATE TABLE other AS SELECT zeroblob(90000)");
    const QByteArray store = bytes();
    const QByteArray journal = bytes(u"-journal"_s);
    halfway.exec("ROLLBACK");
    const auto calls = FailingDisk::failEverywhere([&] {
        setBytes(store);
        setBytes(journal, u"-journal"_s);
        FailingDisk::arm(true);
        try {
            EXPECT_EQ(stored(), before);
        } catch (const StoreError& error) {
            EXPECT_TRUE(FailingDisk::hasStruck() && !error.description().isEmpty());
        }
        FailingDisk::arm(false);
        EXPECT_EQ(stored(), before);
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
    });
    EXPECT_THAT(calls, testing::Each(testing::Gt(0)));
}
