// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"
#include "SimulatedKernel.h"
#include "SystemClock.h"
#include "ViewTest.h"

#include <QTimeZone>
#include <QTimer>

#include <map>

#include <malloc.h>

using namespace std::chrono_literals;

namespace {

/// Where there are days of 23 and of 25 hours.
const QTimeZone berlin("Europe/Berlin");

// What a clock on the wall shows, without any of the program's own.
QDate dateOnTheWall()
{
    return QDateTime::currentDateTimeUtc().toTimeZone(berlin).date();
}

using Marks = std::map<QDate, DayState>;

Marks storedMarks(ModelContext& context)
{
    Marks marks;
    for (const auto& month : context.fetchMonths()) {
        for (const Day& day : month->days.value()) {
            if (day.state != DayState::UNKNOWN)
                marks[month->dateOf(day.id)] = day.state;
        }
    }
    return marks;
}

QDate workdayBefore(QDate date)
{
    const int days = date.dayOfWeek() == Qt::Monday ? 3 : date.dayOfWeek() == Qt::Sunday ? 2 : 1;
    return date.addDays(-days);
}

// Not counting the one file of each thread: the toolkit starts threads whenever it has much to paint.
auto openFiles()
{
    const auto all = QDir::AllEntries | QDir::System;
    return QDir(u"/proc/self/fd"_s).entryList(all).size() - QDir(u"/proc/self/task"_s).entryList(all).size();
}

// Nothing here comes from outside this process, so a few turns of its event loop are enough.
template <class Condition> bool soon(Condition condition)
{
    for (int turn = 0; turn < 100 && !condition(); ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return condition();
}

} // namespace

/// The window and the check on a computer that runs on, from the morning of a day in Berlin.
class MonthsOfRunningTest : public ViewTest, public testing::WithParamInterface<const char*> {
protected:
    MonthsOfRunningTest()
    {
        qputenv("TZ", berlin.id());
        tzset();
        const auto begin = QDate::fromString(QString::fromLatin1(GetParam()), Qt::ISODate).startOfDay(berlin);
        kernel::setClock(std::chrono::seconds(QDateTime::currentDateTimeUtc().secsTo(begin)) + 8h);
        settings->firstTime = false;
        settings->wifiTrackingEnabled = true;
        settings->inOfficeSsids = {u"Office"_s};
    }
    /// Time passes that ends with one check, which is put off when a suspended computer has to find its radio first.
    void pass(std::chrono::seconds awake, std::chrono::seconds suspended = {})
    {
        kernel::pass(awake, suspended);
        if (suspended > 0s) {
            ASSERT_TRUE(soon([&] { return systemClock.findChild<QTimer*>() != nullptr; }));
            EXPECT_TRUE(wifiClient.scans.isEmpty());
            kernel::pass(11s); // timers of Qt are late by up to a twentieth
        }
        expectCheck();
    }
    void expectCheck()
    {
        ASSERT_TRUE(soon([&] { return !wifiClient.scans.isEmpty(); }));
        EXPECT_EQ(std::exchange(wifiClient.scans, {}).size(), 1);
        ++checks;
        // The first mark of a day stays.
        if (wifiClient.networks.first().ssid == u"Office"_s)
            expected.emplace(dateOnTheWall(), DayState::IN_OFFICE);
        expected.emplace(workdayBefore(dateOnTheWall()), DayState::OUT_OF_OFFICE);
        expectToday();
    }
    void setClock(std::chrono::seconds by)
    {
        kernel::setClock(by);
        QCoreApplication::processEvents();
        expectToday();
    }
    void expectToday()
    {
        const QDate date = dateOnTheWall();
        if (std::exchange(shown, date).month() != date.month())
            window.showDay(date);
        const auto days = window.findChildren<CommandClickableButton*>();
        ASSERT_TRUE(dayButton(window, date.day()).isRinged());
        ASSERT_EQ(std::ranges::count_if(days, &CommandClickableButton::isRinged), 1);
        ASSERT_EQ(storedMarks(context), expected);
    }

    SystemClock systemClock;
    DayMarker liveMarker{context, systemClock};
    UndoHistory liveHistory{liveMarker};
    CountingRecords liveCounting{liveMarker, *settings};
    InOfficeCheck liveCheck{{container, liveMarker, liveCounting, *settings, wifiClient, notifier, systemClock}};
    BackupService liveBackups{liveMarker, systemClock};
    const ViewParts liveParts{context,      liveMarker,  liveHistory, liveCounting,    liveBackups, *settings,
                              viewSettings, systemClock, wifiClient,  locationManager, liveCheck,   launchAtLogin};
    ContentView window{liveParts};
    Marks expected;
    QDate shown;
    int checks = 0;
};

TEST_P(MonthsOfRunningTest, leaveTodayTheMarksAndTheMemoryRight)
{
    liveCheck.start();
    const auto files = openFiles();
    show(window);
    expectCheck();
    double memory = 0;
    for (int day = 0; day < 90 && !HasFatalFailure(); ++day) {
        if (day == 30) { // all that is built once has been
            memory = double(mallinfo2().uordblks);
            checks = 0;
        }
        wifiClient.networks = {{day % 5 < 3 ? u"Office"_s : u"Home"_s}};
        for (int i = 0; i < 20; ++i)
            pass(30min);
        wifiClient.networks = {{u"Home"_s}};
        if (day % 20 == 10 || day % 20 == 15) // it is set back by a day, and right again five days later
            setClock(day % 20 == 10 ? -24h : 24h);
        if (day % 3 == 0)
            pass(0s, day % 4 == 0 ? 14h + 72h : 14h);
        for (int i = 0; day % 3 > 0 && i < 28; ++i)
            pass(30min);
    }
    EXPECT_GT(expected.size(), 60);
    // A thread that has just been started has yet to open its file.
    EXPECT_TRUE(eventually([&] { return openFiles() == files; })) << openFiles() - files << " more files are open";
    // A few new months are in memory, but nothing of every check. With the sanitizers, which look for leaks themselves,
    // there is nothing to be seen here.
    EXPECT_LT((double(mallinfo2().uordblks) - memory) / checks, 200) << "bytes of a check";
}

// Ten days on, and awake, the clocks go forward and back.
INSTANTIATE_TEST_SUITE_P(from, MonthsOfRunningTest, testing::Values("2026-03-19", "2026-10-15"));
