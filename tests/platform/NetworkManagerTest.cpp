// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerNames.h"
#include "NetworkManagerWiFiClient.h"
#include "PowerWatch.h"
#include "PrivateBuses.h"
#include "SignalAwaiter.h"
#include "SystemBus.h"

#include <QSignalSpy>

using namespace std::chrono_literals;
using Scan = QCoro::Task<QList<WiFiNetwork>>;
using Action = std::function<void()>;
using enum AuthorizationStatus;

class NetworkManagerTest : public testing::Test {
protected:
    NetworkManagerTest() { start(); }
    void start()
    {
        manager.startMock({u"-t"_s, QStringLiteral(NETWORK_MANAGER_TEMPLATE)});
        addRadio(0);
    }
    void addRadio(int n, uint state = 30) { manager.tell("AddRadio", QString::number(n), u"wlan%1"_s.arg(n), state); }
    void removeRadio(int number) { manager.tell("RemoveRadio", QString::number(number)); }
    void setState(uint state, int number = 0) { manager.tell("SetState", QString::number(number), state); }
    void setScan(int milliseconds, const QString& error = {}) { manager.tell("SetScan", "0", milliseconds, error); }
    void addNetwork(const QByteArray& name, int secondsAgo = 0)
    {
        manager.tell("AddNetwork", "0", QString::fromLatin1('n' + name.toHex()), name, secondsAgo);
    }
    void change(const QString& object, const QString& interface, const char* property, const QVariant& value)
    {
        manager.tell("Change", root + object, interface, property, QDBusVariant(value));
    }
    void change(const char* property, const QVariant& value) { change({}, managerInterface, property, value); }
    bool hasScanned(int times) { return manager.tell("CountScans", "0") == times; }

    /// The sorted names that a scan finds.
    static QString found(const Scan& scan)
    {
        QStringList names;
        for (const WiFiNetwork& network : resultOf(scan))
            names.append(network.ssid.value_or(u"(hidden)"_s));
        names.sort();
        return names.join(u'|');
    }

    const QString root = networkManagerPath, wlan0 = u"wlan0"_s, radio = u"/Devices/0"_s;
    SystemBus systemBus;
    MockService manager{systemBus.connection(), networkManagerService, networkManagerObjects};
    NetworkManagerWiFiClient client{systemBus, {300ms, 20ms, 20ms, 1h, 100ms}},
        patientClient{systemBus, {1h, 20ms, 2s, 1h, 1h}};
};

TEST(NetworkManagerStateTest, theDefaultIsTheRadioThatIsMostReady)
{
    for (const auto& [first, second, best] : {std::tuple(10U, 10U, u""_s),
                                              {10U, 20U, u"b"_s},
                                              {20U, 30U, u"b"_s},
                                              {30U, 40U, u"a"_s},
                                              {120U, 100U, u"b"_s},
                                              {100U, 100U, u"a"_s}}) {
        NetworkManagerState state;
        state.devices = {{u"a"_s, {}, first, {}, {}, {}}, {u"b"_s, {}, second, {}, {}, {}}};
        EXPECT_EQ(state.defaultDevice() ? state.defaultDevice()->path : QString(), best) << first << second;
    }
}

TEST(NetworkManagerStateTest, anAccessPointInUseCountsOnlyIfItIsThere)
{
    using enum WirelessMode;
    for (const auto& [deviceState, mode, lastSeen, count] : {std::tuple(100U, Infrastructure, 10, 1),
                                                             {50U, Infrastructure, 10, 0},
                                                             {50U, Infrastructure, 99, 1},
                                                             {100U, Infrastructure, -1, 0},
                                                             {100U, Hotspot, 99, 0},
                                                             {100U, WirelessMode(1), 10, 0}}) {
        NetworkManagerState state;
        state.accessPoints = {{u"a"_s, {"Office", lastSeen}}};
        const WirelessDevice device{{}, {}, deviceState, mode, {u"a"_s}, u"a"_s};
        EXPECT_EQ(state.networksSeenSince(device, 50s).size(), count) << deviceState << int(mode) << lastSeen;
    }
}

TEST_F(NetworkManagerTest, scansIfPermittedAndElseReadsWhatWasSeenLately)
{
    for (const QByteArray& name :
         {"\xC3\xBC"_ba, "B\xE9"_ba, "C\xC3"_ba, QByteArray(32, '\0'), QByteArray(), "a\0b"_ba, "\xEF\xBB\xBFz"_ba})
        addNetwork(name);
    for (const int secondsAgo : {10, 45, 90, 900, 0, 1})
        addNetwork(QByteArray::number(secondsAgo), secondsAgo);
    manager.tell("Use", "0", "n393030");
    setState(100);
    change(u"/AccessPoint/n30"_s, accessPointInterface, "LastSeen", -1); // was never seen
    manager.tell("RemoveObject", root + u"/AccessPoint/n31"_s);          // has gone, but is still listed
    const auto now = u"(hidden)|(hidden)|10|900|B\u00E9|C\u00C3|a\0b|\u00FC|\uFEFFz"_s;
    const auto lately = QString(now).replace(u"|10|"_s, u"|10|45|"_s);
    // The permission, the answer to a request, the scans so far, and what is found.
    const std::tuple<const char*, const char*, int, QString> rows[]{
        {"yes", "", 1, now}, {"auth", "", 1, lately}, {"broken", "", 1, lately}, {"", "PermissionDenied", 2, lately}};
    for (const auto& [permission, answer, scans, names] : rows) {
        manager.tell("SetPermission", permission);
        setScan(0, QString::fromLatin1(answer));
        const QVariant reads = manager.tell("CountReads").toInt() + 2;
        EXPECT_EQ(resultOf(patientClient.defaultInterface())->name, wlan0);
        EXPECT_EQ(found(patientClient.scanForNetworks(wlan0)), names);
        EXPECT_TRUE(hasScanned(scans)) << permission << answer;
        EXPECT_EQ(manager.tell("CountReads"), reads);
        EXPECT_TRUE(eventually([&] { return patientClient.children().isEmpty(); }));
    }
    setScan(0, u"Device.NotAllowed"_s);
    EXPECT_THROW(found(client.scanForNetworks(wlan0)), BusError); // with the reason
    setScan(0);
    manager.tell("AddCrowd", "0", 3000);
    EXPECT_EQ(found(client.scanForNetworks(wlan0)).count(u'|'), 3000 - 1);
}

TEST_F(NetworkManagerTest, waitsForTheEndOfAScanButNotForEver)
{
    addNetwork("a"_ba);
    setScan(-1);
    auto shortLived = std::make_unique<NetworkManagerWiFiClient>(systemBus, ScanTiming{1h, 1h});
    const Scan scan = patientClient.scanForNetworks(wlan0), abandoned = shortLived->scanForNetworks(wlan0);
    EXPECT_TRUE(eventually([this] { return hasScanned(2); }));
    change(radio, wirelessInterface, "Bitrate", 1U); // which is no end of a scan
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), u"a"_s);
    EXPECT_FALSE(scan.isReady() || abandoned.isReady());
    const Scan unanswered = shortLived->scanForNetworks(wlan0);
    shortLived.reset();
    EXPECT_THROW(resultOf(abandoned), Abandoned);
    EXPECT_THROW(resultOf(unanswered), Abandoned);
    addNetwork("b"_ba);
    change(radio, wirelessInterface, "LastScan", 1LL);
    EXPECT_EQ(found(scan), u"a|b"_s);
}

TEST_F(NetworkManagerTest, waitsForARadioThatIsComingUpButNotForEver)
{
    setState(20);
    EXPECT_FALSE(resultOf(client.readyInterface())->powerOn);
    const auto radioToBe = patientClient.readyInterface();
    setState(30);
    EXPECT_TRUE(resultOf(radioToBe)->powerOn);
    manager.stop();
    EXPECT_THROW(resultOf(client.readyInterface()), WiFiServiceMissing);
    const auto managerToBe = patientClient.readyInterface();
    start();
    EXPECT_TRUE(resultOf(managerToBe)->powerOn);
    change("WirelessEnabled", false);
    EXPECT_FALSE(resultOf(patientClient.readyInterface())->powerOn);
}

TEST_F(NetworkManagerTest, takesTheListAsItIsIfNothingIsEverSeenAgain)
{
    addNetwork("old"_ba, 900);
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), u"old"_s);
    const QVariant reads = manager.tell("CountReads").toInt() + 2; // before the scan and after it
    const Scan scan = patientClient.scanForNetworks(wlan0);
    EXPECT_TRUE(eventually([&] { return manager.tell("CountReads") == reads; }));
    addNetwork("late"_ba, 1);
    EXPECT_EQ(found(scan), u"late|old"_s);
}

TEST_F(NetworkManagerTest, whatIsGoneOrHangsIsAnErrorAndBlocksNothing)
{
    for (const Action& lose :
         {Action([&] { removeRadio(0); }), {[&] { manager.stop(); }}, {[&] { manager.suspend(); }}}) {
        NetworkManagerWiFiClient impatient{systemBus, {300ms, 20ms, 20ms, 3s}};
        NetworkManagerAuthorization authorization{systemBus};
        setScan(-1);
        const int scans = manager.tell("CountScans", "0").toInt();
        const Scan scan = impatient.scanForNetworks(wlan0);
        EXPECT_TRUE(eventually([&] { return hasScanned(scans + 1); }));
        lose();
        const QDeadlineTimer blocked(busTimeout); // a blocking call would take as long
        impatient.startMonitoringPowerEvents();
        authorization.start();
        authorization.requestAlwaysAuthorization();
        EXPECT_FALSE(blocked.hasExpired());
        EXPECT_THAT([&] { found(scan); },
                    testing::ThrowsMessage<PlatformError>(testing::ContainsRegex("did not|wlan0")));
        manager.stop();
        start();
        EXPECT_EQ(found(impatient.scanForNetworks(wlan0)), QString());
    }
}

TEST_F(NetworkManagerTest, nonsenseIsTakenForNothing)
{
    for (const auto& [signature, code] :
         {std::pair("", ""),
          {"a(ss)", "ret = [('a', 'b')]"},
          {"a{oa{sa{sv}}}", "ret = {'/a': {'org.freedesktop.NetworkManager.Device.Wireless': {'AccessPoints': 7}}}"}}) {
        manager.answer(u"org.freedesktop.DBus.ObjectManager"_s, "GetManagedObjects", "", signature, code);
        EXPECT_FALSE(resultOf(client.readyInterface())) << code;
    }
}

TEST_F(NetworkManagerTest, reportsPowerChangesWhileMonitored)
{
    PowerWatch watch(systemBus, 1h);
    const auto* debounce = watch.findChild<QTimer*>();
    QSignalSpy watched(&watch, &PowerWatch::powerStateDidChange), reported(&client, &WiFiClient::powerStateDidChange);
    // What happens, the number of the radio that is reported, and whether it is on then.
    const std::tuple<Action, int, bool> rows[]{
        {[&] { change("WirelessHardwareEnabled", false); }, 0, false},
        {[&] { change("WirelessHardwareEnabled", true), change("WirelessEnabled", false); }, 0, false},
        {[&] { change("WirelessEnabled", true); }, 0, true},
        {[&] { setState(20); }, 0, false},
        {[&] { setState(100); }, 0, true},
        {[&] { addRadio(1, 100); }, 0, true},
        {[&] { manager.tell("Connect", "1"); }, 1, true},
        {[&] { removeRadio(1); }, 0, true},
        {[&] { removeRadio(0); }, 0, false},
        {[&] { manager.stop(); }, 0, false},
        {[&] { start(); }, 0, true}};
    for (const auto& [act, number, isOn] : rows) {
        act();
        ASSERT_TRUE(eventually([&] { return !watched.isEmpty() && !debounce->isActive(); }));
        EXPECT_EQ(watched.takeFirst().value(0), u"wlan%1"_s.arg(number));
        EXPECT_TRUE(watched.isEmpty()); // changes in quick succession are reported once
        EXPECT_EQ(resultOf(client.defaultInterface()).value_or(WiFiInterface()).powerOn, isOn);
    }
    change("Connectivity", 1U);
    EXPECT_FALSE(debounce->isActive());
    client.startMonitoringPowerEvents();
    client.startMonitoringPowerEvents();
    client.stopMonitoringPowerEvents();
    setState(20);
    EXPECT_TRUE(eventually([&] { return reported.size() == 1; })); // monitored once more
}

TEST_F(NetworkManagerTest, followsThePermissionAndAsksForIt)
{
    NetworkManagerAuthorization authorization{systemBus};
    QSignalSpy changed(&authorization, &LocationAuthorization::didChangeAuthorization);
    const auto becomes = [&](AuthorizationStatus status) {
        return eventually([&] { return authorization.authorizationStatus() == status; });
    };
    manager.tell("SetPermission", "auth");
    setScan(0, u"PermissionDenied"_s);
    authorization.requestAlwaysAuthorization(); // reads the result, too; nothing is followed yet
    EXPECT_TRUE(becomes(notDetermined) && hasScanned(101));
    authorization.start();
    for (const auto& [permission, status] :
         {std::pair("no", denied), {"yes", authorizedAlways}, {"auth", notDetermined}, {"", authorizedAlways}}) {
        manager.tell("SetPermission", permission);
        EXPECT_TRUE(becomes(status)) << permission;
    }
    EXPECT_EQ(changed.size(), 5);
    manager.tell("SetPermission", "no");
    EXPECT_TRUE(becomes(denied));
    manager.stop();
    EXPECT_TRUE(becomes(authorizedAlways));
}

TEST_F(NetworkManagerTest, findsABusThatWasRestarted)
{
    NetworkManagerAuthorization authorization(systemBus);
    authorization.start();
    client.startMonitoringPowerEvents();
    QSignalSpy reported(&client, &WiFiClient::powerStateDidChange);
    const auto isReported = [&] { return eventually([&] { return !reported.isEmpty(); }); };
    SystemBus unused;
    EXPECT_TRUE(unused.connection().isConnected());
    QSignalSpy reconnected(&unused, &SystemBus::reconnected);
    privateBuses->start("DBUS_SYSTEM_BUS_ADDRESS");
    EXPECT_TRUE(isReported() && eventually([&] { return reconnected.size() == 1; }));
    manager.bus = systemBus.connection();
    start();
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), QString());
    manager.tell("SetPermission", "no");
    EXPECT_TRUE(eventually([&] { return authorization.authorizationStatus() == denied; }));
    reported.clear();
    setState(100);
    EXPECT_TRUE(isReported());
}

TEST(SystemBusTest, aCallWithoutABusFailsAtOnce)
{
    QObject caller;
    const auto call = QDBusMessage::createMethodCall(u"a.b"_s, u"/"_s, u"a.b"_s, u"c"_s);
    EXPECT_THROW(resultOf(busCall(&caller, QDBusConnection(u"none"_s), call)), BusError);
}
