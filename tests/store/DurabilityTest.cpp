// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreTest.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>

#include <csignal>
#include <functional>
#include <random>
#include <thread>

#include <sys/resource.h>

namespace {

using Removal = std::function<void()>;

Removal limitFileSize(qint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit previous{};
    getrlimit(RLIMIT_FSIZE, &previous);
    const rlimit limit{static_cast<rlim_t>(bytes), previous.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    return [previous] { setrlimit(RLIMIT_FSIZE, &previous); };
}

Removal lock(SQLite::Database database)
{
    database.exec("BEGIN IMMEDIATE");
    return [holder = std::make_shared<SQLite::Database>(std::move(database))]() mutable { holder.reset(); };
}

constexpr void (*retries[])(std::unique_ptr<ModelContainer>&){
    [](auto& container) { EXPECT_TRUE(container->mainContext().save()); },
    [](auto&) { QCoreApplication::processEvents(); },
    [](auto& container) { container.reset(); },
};

int errorsLogged = 0;

} // namespace

class FailingSaveTest : OrdinaryUser, public StoreTest {
protected:
    /// Saves two kinds of changes behind an obstacle, takes that away, makes one more change, and has `retry` save.
    void check(const std::function<Removal()>& putInTheWay, void (*retry)(std::unique_ptr<ModelContainer>&)) const
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

        const Removal takeAway = putInTheWay();
        const auto guard = qScopeGuard([&] { takeAway(); });
        errorsLogged = 0;
        const auto previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
            errorsLogged += type == QtCriticalMsg ? 1 : 0;
        });
        EXPECT_FALSE(context.save());
        QCoreApplication::processEvents();
        qInstallMessageHandler(previous);
        EXPECT_EQ(errorsLogged, 1);
        EXPECT_EQ(contents(context), changed);
        EXPECT_EQ(stored(), before);
        takeAway();
        EXPECT_EQ(stored(), before);

        mark(*march, 30, DayState::OUT_OF_OFFICE);
        const QStringList wanted = contents(context);
        retry(container);
        EXPECT_EQ(stored(), wanted);
    }
};

TEST_F(FailingSaveTest, damagesNothingAndIsTriedAgain)
{
    const std::pair<const char*, std::function<Removal()>> obstacles[]{
        {"no journal", [] { return limitFileSize(0); }},
        {"half a journal", [] { return limitFileSize(3000); }},
        {"no growth", [this] { return limitFileSize(bytes().size()); }},
        {"closed folder", [this] { return setFolderWritable(false), [this] { setFolderWritable(true); }; }},
        {"other program", [this] { return lock(connection()); }},
    };
    for (const auto& [obstacle, putInTheWay] : obstacles) {
        for (const auto& retry : retries) {
            SCOPED_TRACE(testing::Message() << obstacle << ", retry " << &retry - retries);
            check(putInTheWay, retry);
        }
    }
}

TEST_F(FailingSaveTest, makesUpForAFileThatWasReadOnlyWhenItWasOpened)
{
    putSample();
    QFile::setPermissions(path, QFile::ReadOwner);
    const auto container = open();
    ModelContext& context = container->mainContext();
    const auto march = context.fetchMonths(2026, 3).first();
    for (const DayState state : {DayState::IN_OFFICE, DayState::VACATION_DAY}) {
        mark(*march, 31, state);
        EXPECT_FALSE(context.save());
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(context.save());
    EXPECT_EQ(stored(), contents(context));
    EXPECT_EQ(context.fetchMonths(2026, 3), QList{march});
}

class KilledTest : public StoreTest {
protected:
    /// Lets a program go on with its marks until it has acknowledged so many, and kills it `delay` later, somewhere in
    /// the next ones. The last number it wrote.
    [[nodiscard]] int acknowledgedBeforeKill(const QString& mode, int from, int wanted,
                                             std::chrono::microseconds delay) const
    {
        const QDeadlineTimer deadline(30'000);
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child.start(QStringLiteral(MARKING_CHILD), {path, QString::number(from), mode});
        auto readLines = [&, last = from]() mutable {
            while (child.canReadLine())
                last = child.readLine().trimmed().toInt();
            return last;
        };
        while (readLines() < wanted && child.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
        }
        std::this_thread::sleep_for(delay);
        child.kill();
        EXPECT_TRUE(child.waitForFinished(static_cast<int>(deadline.remainingTime())));
        return readLines();
    }
};

TEST_F(KilledTest, everyAcknowledgedMarkIsFound)
{
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    Month expected(2026, 1);
    int marks = 0;
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", round " << round << " from mark " << marks);
        const int wanted = marks + 1 + static_cast<int>(random() % 12);
        const std::chrono::microseconds delay(random() % 5000);
        const int acknowledged = acknowledgedBeforeKill(round % 2 == 0 ? u"save"_s : u"turn"_s, marks, wanted, delay);
        ASSERT_GE(acknowledged, wanted);
        while (marks < acknowledged)
            makeSequencedMark(expected, marks++);
        const auto container = open();
        const auto found = container->mainContext().fetchMonths();
        ASSERT_EQ(found.size(), 12);
        if (found.first()->days.value() != expected.days.value()) // the next mark may be stored, its line not written
            makeSequencedMark(expected, marks++);
        for (const auto& month : found)
            ASSERT_EQ(month->days.value(), expected.days.value());
    }
}
