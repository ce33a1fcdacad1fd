// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "ExpectedMarks.h"
#include "FakeWiFiClient.h"
#include "FixedClock.h"
#include "InOfficeCheck.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "Notifier.h"
#include "StoredMonths.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <rapidcheck/gtest.h>

using namespace std::chrono_literals;

namespace {

/// What is done, on which day from today on, and how.
using Command = std::tuple<std::string, int, int>;

/// The program from a start to its end, with tracking on.
struct Run : public Notifier {
    Run(const QString& path, const QDateTime& now, ExpectedMarks& marks)
        : expected(marks)
        , container({.name = {}, .path = path})
    {
        settings.firstTime = false;
        settings.wifiTrackingEnabled = true;
        settings.inOfficeSsids = {u"Office"_s};
        clock.advance(std::chrono::seconds(clock.now().secsTo(now)));
        check.start();
        expectDue();
    }
    void post(const Notification& notification) override { told += notification.day; }

    void carryOut(const Command& command)
    {
        const auto& [what, days, how] = command;
        const QDate day = clock.today().addDays(days);
        if (what == "networks")
            see(how);
        else if (what == "notices")
            settings.notificationsEnabled = how % 2;
        else if (what == "day")
            move({day, clock.now().time(), QTimeZone::utc()});
        else if (what == "midnight")
            move(clock.today().addDays(1).startOfDay(QTimeZone::utc()));
        client.isHeld = true;
        const auto task = what.ends_with("check") ? check.check(how % 2) : QCoro::Task<bool>();
        if (what.starts_with("mark")) // which may be in the middle of a check
            setByHand(day, allDayStates.at(std::size_t(how)));
        while (what.ends_with("check") && !task.isReady())
            Q_EMIT client.letGo();
        client.isHeld = false;
        if (what.ends_with("check"))
            expect(how % 2);
        RC_ASSERT(storedMarks(container.mainContext()) == expected.marks);
        RC_ASSERT(told == toTell);
    }
    void setByHand(QDate date, DayState state)
    {
        mark(*findOrCreateMonth(container.mainContext(), date), date.day(), state);
        container.mainContext().save();
        expected.marks[date] = state;
        std::erase_if(expected.marks, [](const auto& day) { return day.second == DayState::UNKNOWN; });
    }
    /// The office, others, or a failure from now on.
    void see(int how)
    {
        sees = how;
        client.networks = {{how == 0 ? u"Office"_s : u"Home"_s}};
        client.failure = how == 2 ? u"busy"_s : QString();
        client.interface = how == 4 ? std::nullopt : std::optional(WiFiInterface{u"wlan0"_s, how != 3});
    }
    void move(const QDateTime& to)
    {
        clock.advance(std::chrono::seconds(clock.now().secsTo(to)));
        if (to >= due)
            expectDue();
    }
    void expectDue()
    {
        expect(true);
        due = clock.now().addDuration(30min);
    }
    void expect(bool markPrevious)
    {
        if (sees > 1)
            toTell += QDate(); // a failure is told in any case, and changes nothing
        else if (const auto changed = expected.check(clock.today(), sees == 0, markPrevious);
                 settings.notificationsEnabled)
            toTell += changed;
    }

    FixedClock clock; // goes last with the client: what still waits for them must not touch the rest
    testing::NiceMock<FakeWiFiClient> client;
    ExpectedMarks& expected;
    AppSettings settings;
    ModelContainer container;
    InOfficeCheck check{{container, settings, client, *this, clock}};
    QDateTime due;
    int sees = 0;
    QList<QDate> told, toTell;
};

} // namespace

RC_GTEST_PROP(HandMarksTest, winOverEveryCheckAndSurviveEveryEnd, ())
{
    const auto what = rc::gen::elementOf(std::vector<std::string>{"mark", "mark", "mark during check", "check",
                                                                  "networks", "notices", "day", "midnight", "restart"});
    const auto range = [](int from, int to) { return rc::gen::resize(rc::kNominalSize, rc::gen::inRange(from, to)); };
    const auto commands = *rc::gen::container<std::vector<Command>>(rc::gen::tuple(what, range(-3, 4), range(0, 5)));
    const auto silence = qScopeGuard([] { qInstallMessageHandler(nullptr); });
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QTemporaryDir folder(inMemory);
    ExpectedMarks expected;
    std::optional<Run> run;
    const auto start = [&](const QDateTime& now) {
        run.reset();
        run.emplace(folder.filePath(u"Pellory.store"_s), now, expected);
    };
    start({QDate(2026, 12, 31), QTime(9, 0), QTimeZone::utc()}); // the last workday is in another year tomorrow
    for (const Command& command : commands) {
        if (std::get<0>(command) == "restart")
            start(QDateTime(run->clock.now()));
        run->carryOut(command);
    }
}
