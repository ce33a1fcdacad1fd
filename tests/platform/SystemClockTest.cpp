// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"
#include "PrivateBuses.h"
#include "SignalAwaiter.h"

#include <QElapsedTimer>

using namespace std::chrono_literals;

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
