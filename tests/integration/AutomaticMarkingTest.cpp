// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "PrivateBuses.h"
#include "RunningProgram.h"

#include <QDir>
#include <QStandardPaths>

namespace {

const auto networkManager = u"org.freedesktop.NetworkManager"_s;

QDate workdayBefore(QDate date)
{
    do
        date = date.addDays(-1);
    while (!isMondayToFriday(date));
    return date;
}

} // namespace

/// The program with tracking switched on, on buses of its own.
class AutomaticMarkingTest : public testing::Test {
protected:
    AutomaticMarkingTest()
    {
        // Where it is noon now, so that no test meets midnight.
        home.environment.insert(u"TZ"_s, u"TST%1"_s.arg(QDateTime::currentDateTimeUtc().time().hour() - 12));
        for (const char* bus : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
            home.environment.insert(QString::fromLatin1(bus), qEnvironmentVariable(bus));
        QDir().mkpath(QFileInfo(home.store).path());
        ModelContainer container({.name = {}, .path = home.store});
        const auto settings = std::make_shared<AppSettings>();
        settings->firstTime = false;
        settings->wifiTrackingEnabled = true;
        settings->inOfficeSsids = {u"Büro"_s};
        container.mainContext().insert(settings);
    }

    [[nodiscard]] DayState stateOf(QDate date) const
    {
        ModelContainer container({.name = {}, .path = home.store});
        const auto months = container.mainContext().fetchMonths(date.year(), date.month());
        const Month& month = *months.first();
        return month.days.value().at(*month.indexOf(date.day())).state;
    }

    const QDate today = QDateTime::currentDateTimeUtc().date();
    Home home;
};

TEST_F(AutomaticMarkingTest, aDayAtTheOfficeIsMarkedAndToldOnce)
{
    MockService network{QDBusConnection::systemBus(), networkManager, u"/org/freedesktop"_s};
    MockService server{QDBusConnection::sessionBus(), u"org.freedesktop.Notifications"_s,
                       u"/org/freedesktop/Notifications"_s};
    network.startMock({u"-t"_s, QStringLiteral(NETWORK_MANAGER_TEMPLATE)});
    server.startMock({u"-t"_s, u"notification_daemon"_s});
    network.tell("AddRadio", u"1"_s, u"wlan0"_s, 100U);
    network.tell("AddNetwork", u"1"_s, u"1"_s, u"Büro"_s.toUtf8(), 0);
    network.tell("AddNetwork", u"1"_s, u"2"_s, u"Neighbour"_s.toUtf8(), 0);
    const auto told = [&] {
        QStringList summaries;
        const auto calls = server.tell("GetMethodCalls", u"Notify"_s).value<QDBusArgument>();
        calls.beginArray();
        while (!calls.atEnd()) {
            quint64 time = 0;
            QVariantList arguments;
            calls.beginStructure();
            calls >> time >> arguments;
            calls.endStructure();
            summaries.append(arguments.at(3).toString());
        }
        calls.endArray();
        return summaries;
    };
    const QStringList both{u"Pellory"_s, u"(Not) Pellory"_s};
    {
        RunningProgram program(home);
        EXPECT_TRUE(QTest::qWaitFor([&] { return told() == both; }, RunningProgram::patience))
            << program.log().toStdString();
    }
    {
        RunningProgram again(home);
        EXPECT_TRUE(again.logs("Sleeping for 1800 seconds")) << again.log().toStdString();
        EXPECT_TRUE(again.log().contains("Büro"));
        EXPECT_FALSE(again.log().contains("Neighbour")) << "which is nobody's business";
        EXPECT_FALSE(again.log().contains("Logged as"));
    }
    EXPECT_EQ(network.tell("CountScans", u"1"_s), QVariant(2));
    EXPECT_EQ(told(), both);
    EXPECT_EQ(stateOf(today), DayState::IN_OFFICE);
    EXPECT_EQ(stateOf(workdayBefore(today)), DayState::OUT_OF_OFFICE);
}

TEST_F(AutomaticMarkingTest, aComputerWithoutARadioSaysSo)
{
    if (QStandardPaths::findExecutable(u"NetworkManager"_s, {u"/usr/sbin"_s}).isEmpty())
        GTEST_SKIP() << "NetworkManager is not installed";
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give NetworkManager a network of its own";
    // It sees no device of this computer, and leaves nothing behind.
    const auto start = u"mount -t tmpfs none /run && mount -t tmpfs none /var/lib/NetworkManager && "
                       "mkdir /run/NetworkManager && exec /usr/sbin/NetworkManager --no-daemon --log-level=ERR"_s;
    Daemon daemon(u"unshare"_s, {u"--net"_s, u"--mount"_s, u"sh"_s, u"-c"_s, start});
    const auto isThere = [] {
        return QDBusConnection::systemBus().interface()->isServiceRegistered(networkManager).value();
    };
    const auto isSettled = [&] { return isThere() || daemon.state() == QProcess::NotRunning; };
    ASSERT_TRUE(QTest::qWaitFor(isSettled, RunningProgram::patience));
    if (!isThere())
        GTEST_SKIP() << "NetworkManager does not start here";
    RunningProgram program(home);
    EXPECT_TRUE(program.logs("Could not find default interface for automatic in office detection"));
    EXPECT_TRUE(program.logs("Could not find the default Wi-Fi interface.")) << program.log().toStdString();
}
