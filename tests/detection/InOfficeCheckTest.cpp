// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeCheck.h"
#include "AppSettings.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "FakeWiFiClient.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "Notifier.h"
#include "StoredMonths.h"
#include "Testing.h"
#include "UndoHistory.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace std::literals;

namespace {

QStringList logged;

} // namespace

class InOfficeCheckTest : public testing::Test, public Notifier {
protected:
    InOfficeCheckTest()
    {
        settings.firstTime = false;
        settings.wifiTrackingEnabled = true;
        settings.inOfficeSsids = {u"Office"_s};
        logged.clear();
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            logged.append((type == QtCriticalMsg ? u"critical: "_s : QString()) + text);
        });
    }
    ~InOfficeCheckTest() override { qInstallMessageHandler(nullptr); }
    void post(const Notification& n) override
    {
        if (n.group != 0)
            lastMark = n.group;
        posted += QStringList{n.title, n.subtitle, n.topic, n.day.toString(Qt::ISODate)}.join(u'|');
    }
    void withdraw(const QString& topic) override { posted += u'-' + topic; }
    void withdrawChanges(qint64 /*group*/) override {}
    bool checkNow(bool markPrevious = true)
    {
        auto task = check.check(markPrevious);
        return task.isReady() ? QCoro::waitFor(task) : throw std::logic_error("the check waits");
    }

    FixedClock clock; // destroyed last with the client: what still waits for them must not touch the rest
    testing::NiceMock<FakeWiFiClient> client;
    const QTemporaryDir folder;
    ModelContainer container{{.name = {}, .path = folder.filePath(u"Pellory.store"_s)}};
    ModelContext& context = container.mainContext();
    AppSettings settings;
    DayMarker marker{container.mainContext(), clock};
    CountingRecords counting{marker, settings};
    InOfficeCheck check{{container, marker, counting, settings, client, *this, clock}};
    QStringList posted;
    qint64 lastMark = 0;
};

TEST_F(InOfficeCheckTest, marksDaysThatAreUnknownOrPlannedAndNoOthers)
{
    clock.beginDay({2023, 1, 1}); // a Sunday
    const auto january = findOrCreateMonth(context, {2023, 1, 1}),
               december = findOrCreateMonth(context, {2022, 12, 30});
    for (const DayState before : allDayStates) {
        const bool isOpen = before == DayState::UNKNOWN || before == DayState::WILL_BE_IN_OFFICE;
        for (unsigned setting = 0; setting < 8; ++setting) {
            const bool isInRange = (setting & 1U) != 0, markPrevious = (setting & 2U) != 0;
            client.networks = {{isInRange ? u"Office"_s : u"Home"_s}};
            settings.notificationsEnabled = (setting & 4U) != 0;
            QList<Day> today{{1, before, true}}, previous{{30, before, false}};
            january->days = today;
            december->days = previous;
            QStringList notices;
            if (isOpen && isInRange) {
                today[0] = {1, DayState::IN_OFFICE, false}; // which also corrects the kind of the day
                notices += u"Pellory|You have been marked as in the office today||2023-01-01"_s;
            }
            if (isOpen && markPrevious) {
                previous[0] = {30, DayState::OUT_OF_OFFICE, true};
                notices += u"(Not) Pellory|You have been marked as out of office for yesterday||2022-12-30"_s;
            }
            posted.clear();
            EXPECT_EQ(checkNow(markPrevious), isOpen && isInRange);
            EXPECT_EQ(january->days.value(), today) << int(before) << " with " << setting;
            EXPECT_EQ(december->days.value(), previous) << int(before) << " with " << setting;
            EXPECT_EQ(posted, settings.notificationsEnabled ? notices : QStringList());
        }
    }
}

TEST_F(InOfficeCheckTest, plansANewMonthIfThatIsWanted)
{
    counting.setUsualWeek({Weekdays(0b10001), true});
    client.networks = {{u"Office"_s}};
    EXPECT_TRUE(checkNow(false));
    const auto days = storedMonth(context, clock.today())->days.value();
    EXPECT_EQ(std::ranges::count(days, DayState::IN_OFFICE, &Day::state), 1);
    EXPECT_EQ(std::ranges::count(days, DayState::WILL_BE_IN_OFFICE, &Day::state), 3);
}

TEST_F(InOfficeCheckTest, marksTheLastDayThatWasAWorkday)
{
    clock.beginDay({2026, 11, 23}); // a Monday
    client.networks = {};
    // A day off, the weekdays that are worked, and the day that is marked.
    const std::tuple<QDate, Weekdays, QDate> rows[]{{{2026, 11, 21}, Weekdays::mondayToFriday(), {2026, 11, 20}},
                                                    {{2026, 11, 20}, Weekdays::mondayToFriday(), {2026, 11, 19}},
                                                    {{2026, 11, 19}, Weekdays(0b111), {2026, 11, 18}},
                                                    {{2026, 11, 18}, Weekdays::all(), {2026, 11, 22}}};
    for (const auto& [dayOff, worked, marked] : rows) {
        EXPECT_TRUE(counting.addDaysOff({{dayOff}}) && counting.setWorkWeek({{2026, 11, 1}, worked}));
        checkNow();
        EXPECT_EQ(logged.last(), u"Logged as out of office on "_s + marked.toString(u"yyyy-M-d"_s));
    }
}

TEST_F(InOfficeCheckTest, findsAnOfficeByItsWholeNameAndTheSameCharacters)
{
    // The offices, what is in range, and whether that is one of them. A network without a name is hidden.
    for (const char* row : {"Office>Guests||Office>yes", "Annex|Office>Office>yes", "office>Office>", "Office >Office>",
                            "Office>Office 5G|Off>", ">Office>", "Office>>", "Caf\u00e9>Cafe\u0301>yes",
                            "Cafe\u0301>Caf\u00e9>yes", "O\ufb01ce>Ofice>"}) {
        const QStringList parts = QString::fromUtf8(row).split(u'>');
        settings.inOfficeSsids = parts[0].split(u'|', Qt::SkipEmptyParts);
        client.networks = {};
        for (const QString& name : parts[1].split(u'|'))
            client.networks.append({name.isEmpty() ? std::nullopt : std::optional(name)});
        clock.beginDay(clock.today().addDays(1));
        EXPECT_EQ(checkNow(), parts[2] == u"yes"_s) << row;
    }
}

TEST_F(InOfficeCheckTest, reportsAFailureAndChecksAgain)
{
    settings.notificationsEnabled = false; // of other things
    const QString notice =
        u"Pellory|There was a problem using to Wi-Fi to detect if you're in the office or not.\n\n"_s;
    const auto failsWith = [&](const QString& problem) {
        clock.advance(30min);
        EXPECT_EQ(logged.last(), u"critical: Error while checking if in office via Wi-Fi: "_s + problem);
        EXPECT_EQ(posted.takeLast(), notice + problem + u"|detection-problem|"_s);
    };
    client.failure = u"b\u00fcsy %s"_s;
    check.start();
    failsWith(client.failure);
    client.failure.clear();
    for (int i = 0; i < 2; ++i)
        context.insert(std::make_shared<Month>(2026, 11));
    failsWith(u"There is a problem with the database."_s);
    clock.beginDay({2026, 12, 1}); // whose month is stored once; the month of the day before is stored twice
    failsWith(u"There is a problem with the database."_s);
    EXPECT_EQ(logged.filter(u"Log"_s), QStringList(u"Logged as in office on 2026-12-1"_s));
    client.interface->powerOn = false;
    failsWith(u"Wi-Fi is turned off."_s);
    client.interface.reset();
    failsWith(u"Could not find the default Wi-Fi interface."_s);
    EXPECT_EQ(logged.filter(u"find default"_s),
              QStringList(u"critical: Could not find default interface for automatic in office detection"_s));
    EXPECT_EQ(client.scans.size(), 5); // none without power
}

TEST_F(InOfficeCheckTest, keepsAndTellsWhatCameOfEachCheck)
{
    client.networks = {};
    checkNow(); // marks the day before
    const QString busy = u"busy|detection-problem|"_s, missing = u"missing|detection-problem|"_s,
                  absent = u"No office network is in range."_s, marked = u"Today was marked as in the office."_s,
                  before = u"An office network is in range. Today is already marked."_s,
                  takenBack = u"An office network is in range. You took back today's mark."_s,
                  unset = u"No office network is set."_s,
                  off = u"Automatic tracking is off, so Pellory did not check."_s;
    const auto answer = [](const QString& text) { return u"Pellory|"_s + text + u"|check-answer|"_s; };
    // What is in range or the matter, whether a person asks, what is posted, and what is kept.
    const std::tuple<QString, bool, QString, QString> rows[]{
        {u"busy"_s, false, busy, u"busy"_s},
        {u"busy"_s, false, busy, u"busy"_s},
        {u"Home"_s, false, u"-detection-problem"_s, absent},
        {u"Home"_s, false, {}, absent},
        {u"missing"_s, false, missing, u"missing"_s},
        {u"missing"_s, false, {}, u"missing"_s},
        {u"missing"_s, true, missing, u"missing"_s},
        {u"Home"_s, true, u"-detection-problem "_s + answer(absent), absent},
        {u"quiet"_s, true, {}, absent},
        {u"Office"_s, true, u"Pellory|You have been marked as in the office today||2026-11-20"_s, marked},
        {u"Office"_s, true, answer(before), before},
        {u"off"_s, true, answer(off), before},
        {u"not set up"_s, true, {}, before},
        {u"first"_s, true, answer(absent), absent}, // for whoever asked before it could be made
        {u"first"_s, true, {}, absent},
        {u"undone"_s, true, answer(takenBack), takenBack},
        {u"marked by hand"_s, true, u"Pellory|You have been marked as in the office today||2026-11-20"_s, marked},
        {u"none"_s, true, answer(unset), unset},
    };
    UndoHistory history(marker);
    const QSignalSpy postponed(&check, &InOfficeCheck::postponed);
    for (const auto& [matter, isAsked, expected, kept] : rows) {
        client.isServiceMissing = matter == u"missing"_s;
        client.failure = client.isServiceMissing || matter == u"busy"_s ? matter : QString();
        client.networks = {{matter == u"undone"_s || matter == u"marked by hand"_s ? u"Office"_s : matter}};
        if (matter == u"undone"_s) {
            EXPECT_TRUE(history.undo(lastMark));
        }
        for (const auto state : {DayState::VACATION_DAY, DayState::UNKNOWN}) {
            if (matter == u"marked by hand"_s)
                marker.mark({{clock.today(), state}}, ChangedBy::Hand);
        }
        settings.notificationsEnabled = matter != u"quiet"_s;
        settings.wifiTrackingEnabled = matter != u"off"_s;
        settings.inOfficeSsids = matter == u"none"_s ? QStringList() : QStringList(u"Office"_s);
        settings.firstTime = matter == u"not set up"_s;
        posted.clear();
        if (isAsked)
            matter == u"first"_s ? check.checkAfterSetUp() : check.checkNow();
        else
            EXPECT_FALSE(checkNow());
        EXPECT_EQ(posted.join(u' ').section(u'\n', -1), expected) << qPrintable(matter);
        EXPECT_EQ(check.lastOutcome.value().text(), kept) << qPrintable(matter);
    }
    EXPECT_EQ(postponed.size(), 1);
    EXPECT_EQ(history.changesOf(clock.today()).last().network, u"Office"_s);
}

TEST_F(InOfficeCheckTest, runsAfterEachIntervalUnlessItIsTurnedOffAndAlsoWithABrokenClock)
{
    for (QProperty<bool>* setting : {&settings.wifiTrackingEnabled, &settings.firstTime}) {
        *setting = !*setting;
        EXPECT_FALSE(checkNow());
        *setting = !*setting;
    }
    EXPECT_EQ(logged, QStringList(2, u"Checking if in office via Wi-Fi"_s));
    EXPECT_TRUE(client.scans.isEmpty() && context.fetchMonths().isEmpty());
    check.start();
    EXPECT_EQ(clock.sleeps.first(), 30min);
    for (const qint64 minutes : {2, 0, -5, 45}) {
        settings.checkEveryInMinutes = minutes;
        clock.advance(clock.sleeps.last() - 1s);
        EXPECT_EQ(client.scans.size(), clock.sleeps.size());
        clock.advance(1s);
        EXPECT_EQ(clock.sleeps.last(), std::max<qint64>(minutes, 1) * 60s);
        EXPECT_EQ(check.lastCheck.value(), clock.now());
        EXPECT_EQ(check.nextCheck.value(), clock.now().addDuration(clock.sleeps.last()));
    }
    clock.isBroken = true;
    clock.advance(45min);
    QCoreApplication::processEvents();
    EXPECT_EQ(client.scans.size(), 7); // one at once, but no more
    ASSERT_EQ(clock.findChild<QTimer*>()->intervalAsDuration(), 45min);
    clock.findChild<QTimer*>()->start(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.scans.size() == 8; }, 10'000));
}

TEST_F(InOfficeCheckTest, marksTheDayOfTheAnswerOnce)
{
    client.isHeld = true;
    check.start();
    const auto second = check.check(true);
    Q_EMIT client.letGo();
    clock.beginDay({2026, 11, 21});
    Q_EMIT client.letGo();
    EXPECT_TRUE(second.isReady());
    EXPECT_EQ(logged.filter(u"Log"_s),
              QStringList({u"Logged as in office on 2026-11-21"_s, u"Logged as out of office on 2026-11-20"_s}));
    QCoreApplication::processEvents(); // nobody saves, but the turn ends
    EXPECT_FALSE(context.hasChanges());
}
