// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "ExpectedMarks.h"
#include "FakeWiFiClient.h"
#include "FixedClock.h"
#include "InOfficeCheck.h"
#include "ModelContainer.h"
#include "Notifier.h"
#include "Testing.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

QStringList logged;
const QStringList notices{u"Pellory|You have been marked as in the office today|"_s,
                          u"(Not) Pellory|You have been marked as out of office for yesterday|"_s};

} // namespace

class InOfficeTest : public testing::Test, public Notifier {
protected:
    InOfficeTest()
    {
        settings.firstTime = false;
        settings.wifiTrackingEnabled = true;
        settings.inOfficeSsids = {u"Office"_s};
        logged.clear();
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            logged.append((type == QtCriticalMsg ? u"critical: "_s : QString()) + text);
        });
    }
    ~InOfficeTest() override { qInstallMessageHandler(nullptr); }
    void post(const Notification& n) override { posted += n.title + u'|' + n.subtitle + u'|' + n.topic; }
    bool checkNow(bool markPrevious = true)
    {
        auto task = check.check(markPrevious);
        return task.isReady() ? QCoro::waitFor(task) : throw std::logic_error("the check waits");
    }

    FixedClock clock; // goes last with the client: what still waits for them must not touch the rest
    testing::NiceMock<FakeWiFiClient> client;
    const QTemporaryDir folder;
    ModelContainer container{{.name = {}, .path = folder.filePath(u"Pellory.store"_s)}};
    AppSettings settings;
    InOfficeCheck check{{container, settings, client, *this, clock}};
    QStringList posted;
};

TEST_F(InOfficeTest, isWhereAWholeNameIsTheSameByItsCharacters)
{
    // The offices, then what is in range: a network without a name is hidden.
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
    EXPECT_EQ(client.scans, QStringList(10, u"wlan0"_s));
}

TEST_F(InOfficeTest, isCheckedAgainAfterFailuresThatThePersonIsToldOf)
{
    const QString apology = u"There was a problem using to Wi-Fi to detect if you're in the office or not.\n\n"_s;
    const QString lonely = u"critical: Could not find default interface for automatic in office detection"_s;
    const auto failsWith = [&](const QString& problem) {
        posted.clear();
        clock.advance(30min);
        EXPECT_EQ(logged.last(), u"critical: Error while checking if in office via Wi-Fi: "_s + problem);
        EXPECT_EQ(posted.join(u'~'), u"Pellory|"_s + apology + problem + u"|detection-problem"_s);
    };
    settings.notificationsEnabled = false;
    client.failure = u"b\u00fcsy %s"_s;
    check.start();
    failsWith(client.failure);
    client.failure.clear();
    for (int i = 0; i < 2; ++i)
        container.mainContext().insert(std::make_shared<Month>(2026, 11));
    failsWith(u"There is a problem with the database."_s);
    clock.beginDay({2026, 12, 1}); // the month before is there twice, this one is not
    failsWith(u"There is a problem with the database."_s);
    EXPECT_FALSE(checkNow(false));
    EXPECT_EQ(logged.filter(u"Log"_s), QStringList(u"Logged as in office on 2026-12-1"_s));
    settings.inOfficeSsids = QStringList();
    client.interface->powerOn = false;
    failsWith(u"Wi-Fi is turned off."_s);
    EXPECT_FALSE(logged.contains(lonely));
    client.interface.reset();
    failsWith(u"Could not find the default Wi-Fi interface."_s);
    EXPECT_TRUE(logged.contains(lonely));
    EXPECT_EQ(client.scans.size(), 6); // none without power
}

TEST_F(InOfficeTest, isCheckedWhereThePersonWantsItAfterEachInterval)
{
    for (const bool isSettingUp : {true, false}) {
        settings.wifiTrackingEnabled = isSettingUp;
        settings.firstTime = isSettingUp;
        EXPECT_FALSE(checkNow());
    }
    EXPECT_TRUE((client.scans + posted).isEmpty() && container.mainContext().fetchMonths().isEmpty());
    settings.wifiTrackingEnabled = true;
    check.start();
    for (int i = 0; i < 47; ++i)
        clock.advance(30min);
    for (const qint64 minutes : {2, 0, -5, 45}) {
        settings.checkEveryInMinutes = minutes;
        clock.advance(clock.sleeps.last() - 1s);
        EXPECT_EQ(client.scans.size(), clock.sleeps.size());
        clock.advance(1s);
        EXPECT_EQ(clock.sleeps.last(), std::max<qint64>(minutes, 1) * 60s);
    }
    EXPECT_EQ(clock.sleeps.first(48).count(30min), 48);
    qInstallMessageHandler(nullptr);
    settings.checkEveryInMinutes = std::numeric_limits<qint64>::max();
    EXPECT_DEATH(clock.advance(45min), "9223372036854775807 minutes cannot be counted");
}

TEST_F(InOfficeTest, isCheckedAfterAPlainTimerWhileTheClockIsBroken)
{
    clock.isBroken = true;
    check.start();
    EXPECT_EQ(logged.filter(u"critical"_s), QStringList(2, u"critical: Could not sleep: out of timers"_s));
    for (const int checks : {2, 3, 4}) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return client.scans.size() >= checks; }, 10'000));
        QCoreApplication::processEvents();
        EXPECT_EQ(client.scans.size(), checks);
        auto* timer = clock.findChild<QTimer*>();
        ASSERT_TRUE(timer && timer->intervalAsDuration() == 30min);
        timer->start(0);
    }
}

TEST_F(InOfficeTest, isMarkedOnceOnTheDayOfTheAnswerAndGivenUpWithoutOne)
{
    client.isHeld = true;
    check.start();
    const auto second = check.check(true);
    Q_EMIT client.letGo();
    clock.beginDay({2026, 11, 21});
    Q_EMIT client.letGo();
    EXPECT_TRUE(second.isReady() && client.scans.size() == 2);
    QCoreApplication::processEvents();
    ModelContainer onDisk(container.configuration()); // nobody has saved, but the turn has ended
    EXPECT_EQ(storedMarks(onDisk.mainContext()),
              (Marks{{QDate(2026, 11, 20), DayState::OUT_OF_OFFICE}, {QDate(2026, 11, 21), DayState::IN_OFFICE}}));
    EXPECT_EQ(std::exchange(posted, {}), notices);
    for (const int held : {0, 1, 2, 3}) { // in a sleep, in a rest on the timer, in a lookup, in a scan
        auto ownClock = std::make_unique<FixedClock>();
        auto ownClient = std::make_unique<FakeWiFiClient>();
        ownClock->isBroken = held == 1;
        ownClient->isHeld = held >= 2;
        auto own = std::make_unique<InOfficeCheck>(CheckParts{container, settings, *ownClient, *this, *ownClock});
        own->start();
        const auto asked = own->check(true);
        if (held == 3)
            Q_EMIT ownClient->letGo();
        posted.clear();
        logged.clear();
        own.reset();
        ownClock.reset();
        ownClient.reset();
        EXPECT_TRUE(asked.isReady() && logged.isEmpty() && posted.isEmpty()) << held;
    }
}
