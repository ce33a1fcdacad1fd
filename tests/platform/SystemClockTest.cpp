// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"
#include "Emission.h"
#include "PrivateBuses.h"
#include "TimeOfDay.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace std::chrono_literals;

TEST(SystemClockTest, tellsOfLocalMidnightAndOfNothingElse)
{
    const auto restore = qScopeGuard([zone = qgetenv("TZ")] { qputenv("TZ", zone), tzset(); });
    qputenv("TZ", whereItIsNow(secondsOfDay - 3).zone.toUtf8()); // three seconds before midnight
    tzset();
    const SystemClock clock;
    QSignalSpy newDay(&clock, &Clock::dayChanged);
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime told = clock.now();
    EXPECT_TRUE(before <= told && told <= QDateTime::currentDateTime());
    ASSERT_TRUE(newDay.wait(10'000));
    EXPECT_GT(clock.today(), told.date());
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(newDay.size(), 1);
}

TEST(SystemClockTest, aSleepLastsSoLongAndEndsWithTheClock)
{
    auto clock = std::make_unique<SystemClock>();
    const auto longSleep = clock->sleep(1h);
    for (const auto duration : {0s, 1s}) {
        QElapsedTimer slept;
        slept.start();
        endOf(clock->sleep(duration));
        EXPECT_GE(slept.elapsed() * 1ms, duration);
    }
    EXPECT_FALSE(longSleep.isReady());
    clock.reset();
    EXPECT_THROW(endOf(longSleep), Abandoned);
}
