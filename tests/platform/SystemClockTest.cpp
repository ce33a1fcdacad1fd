// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"
#include "TimeOfDay.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// Moves this process to a time zone in which it will be midnight in so many seconds.
void moveToMidnight(int seconds)
{
    qputenv("TZ", whereItIsNow(secondsOfDay - seconds).zone.toUtf8());
    tzset();
}

} // namespace

TEST(SystemClockTest, tellsOfLocalMidnightAndOfNothingElse)
{
    const auto restore = qScopeGuard([] {
        qputenv("TZ", "UTC");
        tzset();
    });
    moveToMidnight(3);
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
