// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"
#include "PrivateBuses.h"
#include "SignalAwaiter.h"

using namespace std::chrono_literals;

TEST(SystemClockTest, aSleepEndsInTimeOrWithTheClock)
{
    auto clock = std::make_unique<SystemClock>();
    const auto longSleep = clock->sleep(1h);
    resultOf(clock->sleep(0s));
    EXPECT_FALSE(longSleep.isReady());
    clock.reset();
    EXPECT_THROW(resultOf(longSleep), Abandoned);
}
