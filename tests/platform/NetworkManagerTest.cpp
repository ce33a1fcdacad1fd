// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerNames.h"
#include "NetworkManagerWiFiClient.h"
#include "PortalAppearance.h"
#include "PowerWatch.h"
#include "PrivateBuses.h"
#include "SignalAwaiter.h"
#include "StatusNotifierHost.h"

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
    void setState(uint state) { manager.tell("SetState", "0", state); }
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

    /// The sorted names that a scan finds, or its error.
    static QString found(const Scan& scan)
    {
        QStringList names;
        try {
            for (const WiFiNetwork& network : resultOf(scan))
                names.append(network.ssid.value_or(u"(hidden)"_s));
        } catch (const PlatformError& error) {
            return u"error: "_s + error.description();
        }
        names.sort();
        return names.join(u'|');
    }
    static bool isError(const QString& names) { return names.startsWith("error: "_L1); }

    const QString root = networkManagerPath, wlan0 = u"wlan0"_s, radio = u"/Devices/0"_s;
    MockService manager{QDBusConnection::systemBus(), networkManagerService, networkManagerObjects};
    NetworkManagerWiFiClient client{{300ms, 20ms}}, patientClient{{1h, 20ms}};
};

TEST_F(NetworkManagerTest, theDefaultIsTheRadioInUse)
{
    removeRadio(0);
    manager.tell("AddEthernetDevice", "1", "eth0", 100);
    // The states of the radios 9, 10 and 11, which sort otherwise as texts; the one in use; the default.
    const std::tuple<std::vector<uint>, int, int> rows[]{
        {{10}, 0, 0},        {{10, 20}, 0, 10}, {{20, 30}, 0, 10},  {{30, 40}, 0, 9},        {{30, 100}, 0, 10},
        {{120, 100}, 0, 10}, {{30, 110}, 0, 9}, {{100, 100}, 0, 9}, {{100, 30, 100}, 10, 10}};
    for (const auto& [states, used, best] : rows) {
        for (auto index = int(states.size()); index-- > 0;)
            addRadio(9 + index, states[size_t(index)]);
        manager.tell("Connect", QString::number(used));
        const auto interface = resultOf(client.defaultInterface());
        EXPECT_EQ(interface ? interface->name : wlan0, u"wlan%1"_s.arg(best)) << testing::PrintToString(states);
        for (auto index = int(states.size()); index-- > 0;)
            removeRadio(9 + index);
    }
}

TEST_F(NetworkManagerTest, scansIfPermittedAndElseReadsWhatWasSeenLately)
{
    const QByteArray raw[]{"\xC3\xBC"_ba,        "B\xE9"_ba, "C\xC3"_ba, QByteArray(32, 'x'),
                           QByteArray(32, '\0'), {},         "a\0b"_ba,  "\xEF\xBB\xBFz"_ba};
    for (const QByteArray& name : raw)
        addNetwork(name);
    for (const int secondsAgo : {10, 45, 90, 900, 0, 1})
        addNetwork(QByteArray::number(secondsAgo), secondsAgo);
    manager.tell("Use", "0", "n393030");
    change(u"/AccessPoint/n30"_s, accessPointInterface, "LastSeen", -1); // was never seen
    manager.tell("RemoveObject", root + u"/AccessPoint/n31"_s);          // has gone, but is still listed
    const auto now = u"(hidden)|(hidden)|10|900|B\u00E9|C\u00C3|a\0b|xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx|\u00FC|\uFEFFz"_s;
    const auto lately = QString(now).replace(u"|10|"_s, u"|10|45|"_s);
    // The permission, the answer to a request, the scans so far, and what is found.
    const std::tuple<const char*, const char*, int, QString> rows[]{
        {"yes", "", 1, now},
        {"auth", "", 1, lately},
        {"", "", 2, now},
        {"", "PermissionDenied", 3, lately},
        {"", "Device.NotAllowed", 4, u"error: Scanning is refused here"_s}};
    for (const auto& [permission, answer, scans, names] : rows) {
        SCOPED_TRACE(permission + std::string(answer));
        manager.tell("SetPermission", permission);
        setScan(0, QString::fromLatin1(answer));
        const QVariant reads = manager.tell("CountReads").toInt() + (*answer == 'D' ? 1 : 2);
        EXPECT_EQ(resultOf(patientClient.defaultInterface())->name, wlan0);
        EXPECT_EQ(found(patientClient.scanForNetworks(wlan0)), names);
        EXPECT_TRUE(hasScanned(scans));
        EXPECT_EQ(manager.tell("CountReads"), reads);
        EXPECT_TRUE(eventually([&] { return patientClient.children().isEmpty(); }));
    }
    setScan(0);
    manager.tell("AddCrowd", "0", 3000);
    EXPECT_EQ(found(client.scanForNetworks(wlan0)).count(u'|'), 3000 - 1);
}

TEST_F(NetworkManagerTest, waitsForTheEndOfAScanButNotForEver)
{
    addNetwork("a"_ba);
    setScan(-1);
    const Scan scan = patientClient.scanForNetworks(wlan0), other = patientClient.scanForNetworks(wlan0);
    EXPECT_TRUE(eventually([&] { return hasScanned(2); }));
    change(radio, wirelessInterface, "Bitrate", 1U); // which is no end of a scan
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), u"a"_s);
    EXPECT_FALSE(scan.isReady() || other.isReady());
    addNetwork("b"_ba);
    change(radio, wirelessInterface, "LastScan", 1LL);
    for (const Scan* ended : {&scan, &other})
        EXPECT_EQ(found(*ended), u"a|b"_s);
}

TEST_F(NetworkManagerTest, whatIsGoneOrHangsIsAnErrorAndBlocksNothing)
{
    MockService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s, u"/desktop"_s};
    MockService tray{QDBusConnection::sessionBus(), u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s};
    for (MockService* service : {&desktop, &tray}) {
        service->startMock();
        service->suspend();
    }
    for (const Action& lose :
         {Action([&] { removeRadio(0); }), {[&] { manager.stop(); }}, {[&] { manager.suspend(); }}}) {
        NetworkManagerWiFiClient impatient{{300ms, 20ms, 3s}};
        NetworkManagerAuthorization authorization;
        PortalAppearance appearance;
        StatusNotifierHost host;
        setScan(-1);
        const Scan scan = impatient.scanForNetworks(wlan0);
        EXPECT_TRUE(eventually([&] { return hasScanned(1); }));
        lose();
        const QDeadlineTimer blocked(busTimeout); // a blocking call would take as long
        impatient.startMonitoringPowerEvents();
        authorization.start();
        authorization.requestAlwaysAuthorization();
        appearance.start();
        host.start();
        const Scan another = impatient.scanForNetworks(wlan0);
        const auto named = impatient.interfaceWithName(wlan0), usual = impatient.defaultInterface();
        EXPECT_FALSE(blocked.hasExpired());
        EXPECT_TRUE(isError(found(scan)) && isError(found(another)));
        EXPECT_FALSE(resultOf(named) || resultOf(usual));
        manager.stop();
        start();
        EXPECT_EQ(found(impatient.scanForNetworks(wlan0)), QString());
    }
}

TEST_F(NetworkManagerTest, nonsenseIsTakenForNothing)
{
    addNetwork("a"_ba);
    client.startMonitoringPowerEvents();
    const auto scan = [this] { return found(client.scanForNetworks(wlan0)); };
    manager.path = root;
    for (const auto& [signature, code] : nonsense) {
        manager.answer(managerInterface, "GetPermissions", "", signature, code);
        EXPECT_EQ(isError(scan()), QByteArrayView(code).startsWith("raise")) << code;
    }
    manager.answer(managerInterface, "GetPermissions", "", "a{ss}", "ret = {'a': 'b'}");
    manager.emitSignal(propertiesInterface, "PropertiesChanged", "s(ss)as",
                       {managerInterface, QStringList{u"a"_s, u"b"_s}, QStringList()});
    EXPECT_EQ(scan(), u"a"_s);
    manager.path = networkManagerObjects;
    for (const auto& [signature, code] : nonsense) {
        manager.answer(u"org.freedesktop.DBus.ObjectManager"_s, "GetManagedObjects", "", signature, code);
        EXPECT_TRUE(isError(scan())) << code;
        EXPECT_EQ(resultOf(client.defaultInterface()), std::nullopt) << code;
    }
}

TEST_F(NetworkManagerTest, aClientThatIsDestroyedAbandonsItsScan)
{
    setScan(-1);
    // It waits for the first answer, for the end of the scan, and for the last access points.
    const std::pair<ScanTiming, int> rows[]{{{1h, 1h}, 0}, {{1h, 1h}, 1}, {{0ms, 1h}, 2}};
    for (const auto& [timing, scans] : rows) {
        auto shortLived = std::make_unique<NetworkManagerWiFiClient>(timing);
        const Scan scan = shortLived->scanForNetworks(wlan0);
        EXPECT_TRUE(eventually([&, scans = scans] { return hasScanned(scans); }));
        for (int reading = 0; reading < 3 * scans; ++reading) // so that the reply to the request has arrived
            resultOf(client.defaultInterface());
        EXPECT_FALSE(scan.isReady());
        shortLived.reset();
        EXPECT_THROW(resultOf(scan), Abandoned);
    }
}

TEST_F(NetworkManagerTest, reportsPowerChangesWhileMonitored)
{
    PowerWatch watch(1h);
    const auto* debounce = watch.findChild<QTimer*>();
    EXPECT_GT(debounce->interval(), 0);
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
        const auto report = watched.takeFirst().value(0);
        EXPECT_EQ(report, u"wlan%1"_s.arg(number));
        EXPECT_TRUE(watched.isEmpty()); // changes in quick succession are reported once
        EXPECT_EQ(resultOf(client.defaultInterface()).value_or(WiFiInterface()).powerOn, isOn);
    }
    change("Connectivity", 1U);
    setState(40);
    QCoreApplication::processEvents();
    EXPECT_FALSE(debounce->isActive());
    client.startMonitoringPowerEvents();
    client.startMonitoringPowerEvents();
    client.stopMonitoringPowerEvents();
    setState(100);
    EXPECT_TRUE(eventually([&] { return reported.size() == 1; }));
    client.stopMonitoringPowerEvents();
    setState(40);
    EXPECT_TRUE(eventually([&] { return watched.size() == 2; }));
    EXPECT_EQ(reported.size(), 1);
}

TEST_F(NetworkManagerTest, followsThePermissionAndAsksForIt)
{
    NetworkManagerAuthorization authorization;
    QSignalSpy changed(&authorization, &LocationAuthorization::didChangeAuthorization);
    manager.tell("SetPermission", "auth");
    setScan(0, u"PermissionDenied"_s);
    authorization.requestAlwaysAuthorization(); // reads the result, too; nothing is followed yet
    EXPECT_TRUE(eventually([&] { return authorization.authorizationStatus() == notDetermined; }));
    EXPECT_TRUE(hasScanned(101));
    authorization.start();
    const std::tuple<const char*, AuthorizationStatus, int> rows[]{
        {"no", denied, 2}, {"yes", authorizedAlways, 3}, {"auth", notDetermined, 4}, {"", authorizedAlways, 5},
        {"no", denied, 6}, {"gone", authorizedAlways, 7}};
    for (const auto& [permission, status, count] : rows) {
        permission == "gone"_ba ? manager.stop() : void(manager.tell("SetPermission", permission));
        EXPECT_TRUE(eventually([&, wanted = status] { return authorization.authorizationStatus() == wanted; }));
        EXPECT_EQ(changed.size(), count) << permission;
    }
}
