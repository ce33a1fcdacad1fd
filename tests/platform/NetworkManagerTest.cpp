// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerNames.h"
#include "NetworkManagerWiFiClient.h"
#include "PortalAppearance.h"
#include "PrivateBuses.h"
#include "SignalAwaiter.h"
#include "StatusNotifierHost.h"

#include <QDBusObjectPath>
#include <QSignalSpy>

using namespace std::chrono_literals;
using Names = QList<std::optional<QString>>;
using Scan = QCoro::Task<QList<WiFiNetwork>>;
using Action = std::function<void()>;
using enum AuthorizationStatus;

class NetworkManagerTest : public testing::Test {
protected:
    NetworkManagerTest() { start(), addRadio(0); }
    void start() { manager.startMock(QStringLiteral(NETWORK_MANAGER_TEMPLATE)); }
    void addRadio(int n, uint state = 30) { manager.tell("AddRadio", QString::number(n), u"wlan%1"_s.arg(n), state); }
    void removeRadio(int number) { manager.tell("RemoveRadio", QString::number(number)); }
    void setState(uint state) { manager.tell("SetState", u"0"_s, state); }
    void setScan(int milliseconds, const QString& error = {}) { manager.tell("SetScan", u"0"_s, milliseconds, error); }
    void addNetwork(const QByteArray& name, int secondsAgo = 0)
    {
        manager.tell("AddNetwork", u"0"_s, u'n' + QString::fromLatin1(name.toHex()), name, secondsAgo);
    }
    void change(const QString& object, const QString& interface, const QString& property, const QVariant& value)
    {
        manager.tell("Change", object, interface, property, QDBusVariant(value));
    }
    void change(const QString& name, const QVariant& to) { change(networkManagerPath, managerInterface, name, to); }
    bool hasScanned(int times) { return manager.tell("CountScans", u"0"_s) == times; }

    /// The names that a scan finds, in order; the text of the error where it fails.
    static Names found(const Scan& scan)
    {
        Names names;
        try {
            for (const WiFiNetwork& network : endOf(scan))
                names.append(network.ssid);
        } catch (const PlatformError& error) {
            names = {u"error: "_s + error.description()};
        }
        std::ranges::sort(names);
        return names;
    }
    /// Waits until all that was told here is dealt with, and what it has started, too.
    void settle()
    {
        QCoreApplication::processEvents();
        for (int reading = 0; reading < 3; ++reading)
            static_cast<void>(endOf(client.defaultInterface()));
    }

    PlayedService manager{QDBusConnection::systemBus(), networkManagerService, networkManagerObjects};
    const QString wlan0 = u"wlan0"_s, radio = networkManagerPath + u"/Devices/0"_s;
    NetworkManagerWiFiClient client{{300ms, 20ms}}, patientClient{{1h, 20ms}};
};

TEST_F(NetworkManagerTest, theDefaultIsTheRadioThatIsUsed)
{
    removeRadio(0);
    manager.tell("AddEthernetDevice", u"1"_s, u"eth0"_s, 100);
    // The states of the radios 9, 10 and 11, which sort otherwise as texts; the one in use; the default.
    const std::tuple<std::vector<uint>, int, int> rows[]{
        {{10}, 0, 0},        {{10, 20}, 0, 10}, {{20, 30}, 0, 10},  {{30, 40}, 0, 9},        {{30, 100}, 0, 10},
        {{120, 100}, 0, 10}, {{30, 110}, 0, 9}, {{100, 100}, 0, 9}, {{100, 30, 100}, 10, 10}};
    for (const auto& [states, used, best] : rows) {
        int number = 9;
        for (const uint state : states)
            addRadio(number++, state);
        const QDBusObjectPath connection(networkManagerPath + u"/ActiveConnection/%1"_s.arg(used));
        change(u"PrimaryConnection"_s, QVariant::fromValue(connection));
        const auto interface = endOf(client.defaultInterface());
        EXPECT_EQ(interface ? interface->name : wlan0, u"wlan%1"_s.arg(best)) << testing::PrintToString(states);
        while (--number >= 9)
            removeRadio(number);
    }
}

TEST_F(NetworkManagerTest, scansWhereNobodyIsAskedAndElseReadsWhatWasSeenLately)
{
    const QByteArray raw[]{"\xC3\xBC"_ba,        "B\xE9"_ba, "C\xC3"_ba, QByteArray(32, 'x'),
                           QByteArray(32, '\0'), {},         "a\0b"_ba,  "\xEF\xBB\xBFz"_ba};
    for (const QByteArray& name : raw)
        addNetwork(name);
    for (const int secondsAgo : {10, 45, 90, 900, 0, 1})
        addNetwork(QByteArray::number(secondsAgo), secondsAgo);
    const QString points = networkManagerPath + u"/AccessPoint/n"_s;
    manager.tell("Use", u"0"_s, u"n393030"_s);
    change(points + u"30"_s, accessPointInterface, u"LastSeen"_s, -1); // was never seen
    manager.tell("RemoveObject", points + u"31"_s);                    // has gone, and is still listed
    Names now{{},           {},        u"10"_s,           u"900"_s,    u"B\u00E9"_s,
              u"C\u00C3"_s, u"a\0b"_s, QString(32, u'x'), u"\u00FC"_s, u"\uFEFFz"_s},
        lately = now;
    lately.insert(3, u"45"_s);
    const QString error = u"org.freedesktop.NetworkManager."_s, denied = error + u"PermissionDenied"_s,
                  refused = error + u"Device.NotAllowed"_s;
    const std::tuple<QString, QString, int, Names> rows[]{
        {u"yes"_s, {}, 1, now}, {u"auth"_s, {}, 1, lately}, {u"no"_s, {}, 1, lately},
        {{}, {}, 2, now},       {{}, denied, 3, lately},    {{}, refused, 4, {u"error: Scanning is refused here"_s}}};
    for (const auto& [permission, answer, scans, names] : rows) {
        manager.tell("SetPermission", permission);
        setScan(0, answer);
        EXPECT_EQ(found(patientClient.scanForNetworks(wlan0)), names) << qPrintable(permission + answer);
        EXPECT_TRUE(hasScanned(scans)) << qPrintable(permission + answer);
    }
}

TEST_F(NetworkManagerTest, waitsForTheEndOfAScanButNotForEver)
{
    addNetwork("a"_ba);
    setScan(-1);
    const Scan scan = patientClient.scanForNetworks(wlan0), other = patientClient.scanForNetworks(wlan0);
    EXPECT_TRUE(eventually([&] { return hasScanned(2); }));
    change(radio, wirelessInterface, u"Bitrate"_s, 1U); // which is no end of a scan
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), Names{u"a"_s});
    EXPECT_FALSE(scan.isReady() || other.isReady());
    addNetwork("b"_ba);
    change(radio, wirelessInterface, u"LastScan"_s, 1LL);
    for (const Scan* ended : {&scan, &other})
        EXPECT_EQ(found(*ended), (Names{u"a"_s, u"b"_s}));
}

TEST_F(NetworkManagerTest, whatGoesAwayIsAnErrorUntilItIsBack)
{
    for (const Action& lose : {Action([this] { removeRadio(0); }), Action([this] { manager.stop(); })}) {
        setScan(-1);
        const Scan scan = client.scanForNetworks(wlan0);
        EXPECT_TRUE(eventually([&] { return hasScanned(1); }));
        lose();
        for (const Names& names : {found(scan), found(client.scanForNetworks(wlan0))})
            EXPECT_TRUE(names.value(0).value_or(QString()).startsWith(u"error: "_s));
        EXPECT_FALSE(endOf(client.defaultInterface()) || endOf(client.interfaceWithName(wlan0)));
        manager.stop(), start(), addRadio(0), addNetwork("a"_ba);
        EXPECT_EQ(found(patientClient.scanForNetworks(wlan0)), Names{u"a"_s});
        manager.stop(), start(), addRadio(0);
    }
}

TEST_F(NetworkManagerTest, whatDoesNotAnswerHoldsUpNothingAndIsGivenUp)
{
    PlayedService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s, u"/desktop"_s};
    PlayedService tray{QDBusConnection::sessionBus(), u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s};
    for (PlayedService* service : {&desktop, &tray})
        service->startMock({service->name, service->path, service->name}), service->suspend();
    addNetwork("a"_ba), manager.suspend();
    NetworkManagerWiFiClient impatient{{300ms, 20ms, 3s}};
    NetworkManagerAuthorization authorization;
    PortalAppearance appearance;
    StatusNotifierHost host;
    QElapsedTimer blocked;
    blocked.start();
    authorization.start(), authorization.requestAlwaysAuthorization(), appearance.start(), host.start();
    impatient.startMonitoringPowerEvents();
    const auto interface = impatient.defaultInterface();
    const Scan scan = impatient.scanForNetworks(wlan0);
    for (int beats = 0; beats < 100; ++beats)
        QCoreApplication::processEvents();
    EXPECT_FALSE(interface.isReady() || scan.isReady());
    EXPECT_LT(blocked.elapsed() * 1ms, busTimeout); // so long a call that waits would wait
    EXPECT_EQ(endOf(interface), std::nullopt);
    EXPECT_TRUE(found(scan).value(0).value_or(QString()).startsWith(u"error: "_s));
    manager.resume();
    EXPECT_EQ(found(impatient.scanForNetworks(wlan0)), Names{u"a"_s});
}

TEST_F(NetworkManagerTest, nonsenseIsTakenForNothing)
{
    addNetwork("a"_ba);
    client.startMonitoringPowerEvents();
    const auto answer = [&](const QString& interface, const char* method, const char* signature, const char* code) {
        manager.tell("AddMethod", interface, QString::fromLatin1(method), QString(), QString::fromLatin1(signature),
                     QString::fromLatin1(code));
    };
    manager.path = networkManagerPath;
    for (const auto& [signature, code] : nonsense) {
        answer(managerInterface, "GetPermissions", signature, code);
        EXPECT_EQ(found(client.scanForNetworks(wlan0)) == Names{u"a"_s}, !QByteArrayView(code).startsWith("raise"))
            << code; // not an error
    }
    answer(managerInterface, "GetPermissions", "a{ss}", "ret = {'a': 'b'}");
    manager.tell("EmitSignal", propertiesInterface, u"PropertiesChanged"_s, u"s(ss)as"_s,
                 QVariantList{managerInterface, QStringList{u"a"_s, u"b"_s}, QStringList()});
    EXPECT_EQ(found(client.scanForNetworks(wlan0)), Names{u"a"_s});
    manager.path = networkManagerObjects;
    for (const auto& [signature, code] : nonsense) {
        answer(u"org.freedesktop.DBus.ObjectManager"_s, "GetManagedObjects", signature, code);
        EXPECT_TRUE(found(client.scanForNetworks(wlan0)).value(0).value_or(QString()).startsWith(u"error: "_s)) << code;
        EXPECT_EQ(endOf(client.defaultInterface()), std::nullopt) << code;
    }
}

TEST_F(NetworkManagerTest, aClientThatGoesAbandonsItsScan)
{
    setScan(-1);
    // It goes while it waits for the first answer, for the end of the scan, and for the last access points.
    const std::pair<ScanTiming, int> rows[]{{{1h, 1h}, 0}, {{1h, 1h}, 1}, {{0ms, 1h}, 2}};
    for (const auto& row : rows) {
        auto shortLived = std::make_unique<NetworkManagerWiFiClient>(row.first);
        shortLived->startMonitoringPowerEvents();
        const Scan scan = shortLived->scanForNetworks(wlan0);
        EXPECT_TRUE(eventually([&] { return hasScanned(row.second); }));
        if (row.second > 0)
            settle();
        setState(row.second % 2 == 0 ? 100 : 30);
        QCoreApplication::sendPostedEvents(); // so that it is also about to tell of the power
        EXPECT_FALSE(scan.isReady());
        shortLived.reset();
        EXPECT_THROW(endOf(scan), Abandoned);
    }
}

TEST_F(NetworkManagerTest, findsThousandsOfAccessPoints)
{
    manager.tell("AddCrowd", u"0"_s, 3000);
    EXPECT_EQ(found(client.scanForNetworks(wlan0)).size(), 3000);
}

TEST_F(NetworkManagerTest, tellsOfThePowerForAsLongAsSomebodyListens)
{
    QSignalSpy told(&client, &WiFiClient::powerStateDidChange);
    client.startMonitoringPowerEvents();
    client.startMonitoringPowerEvents();
    // What is done, the number of the radio that is told of, if any, and whether it is on.
    const std::tuple<Action, QList<int>, bool> rows[]{
        {[&] { change(u"WirelessHardwareEnabled"_s, false); }, {0}, false},
        {[&] { manager.tell("SetPower", false); }, {0}, false},
        {[&] { manager.tell("SetPower", true); }, {0}, false},
        {[&] { change(u"WirelessHardwareEnabled"_s, true); }, {0}, true},
        {[&] { change(u"Connectivity"_s, 1U), setState(40); }, {}, true},
        {[&] { setState(100); }, {0}, true},
        {[&] { addRadio(1, 100); }, {0}, true},
        {[&] { setState(110); }, {1}, true},
        {[&] { removeRadio(1); }, {0}, true},
        {[&] { removeRadio(0); }, {0}, false},
        {[&] { addRadio(1); }, {1}, true},
        {[&] { manager.stop(); }, {1}, false},
        {[&] { start(); }, {1}, false},
        {[&] { client.stopMonitoringPowerEvents(), addRadio(0); }, {0}, true},
        {[&] { client.stopMonitoringPowerEvents(), setState(20), manager.stop(); }, {}, false},
        {[&] { client.startMonitoringPowerEvents(), start(); }, {0}, false},
    };
    int number = 0;
    for (const auto& [act, radios, isOn] : rows) {
        SCOPED_TRACE(number++);
        told.clear();
        act();
        settle();
        const auto name = radios.isEmpty() ? QVariant() : u"wlan%1"_s.arg(radios.first());
        EXPECT_EQ(told.value(told.size() - 1).value(0), name);
        EXPECT_EQ(endOf(client.defaultInterface()).value_or(WiFiInterface()).powerOn, isOn);
    }
}

TEST_F(NetworkManagerTest, thePermissionIsFollowedAndCanBeAskedFor)
{
    NetworkManagerAuthorization authorization;
    QSignalSpy told(&authorization, &LocationAuthorization::didChangeAuthorization);
    manager.tell("SetPermission", u"auth"_s);
    setScan(0, u"org.freedesktop.NetworkManager.PermissionDenied"_s);
    authorization.requestAlwaysAuthorization(); // and reads what has come of it; nothing is being followed yet
    EXPECT_TRUE(eventually([&] { return authorization.authorizationStatus() == notDetermined; }));
    EXPECT_TRUE(hasScanned(101));
    authorization.start();
    const std::tuple<QString, AuthorizationStatus, int> rows[]{
        {u"no"_s, denied, 2}, {u"yes"_s, authorizedAlways, 3}, {u"auth"_s, notDetermined, 4}, {{}, authorizedAlways, 5},
        {u"no"_s, denied, 6}, {u"gone"_s, authorizedAlways, 7}};
    for (const auto& [permission, status, count] : rows) {
        permission == u"gone"_s ? manager.stop() : static_cast<void>(manager.tell("SetPermission", permission));
        EXPECT_TRUE(eventually([&, wanted = status] { return authorization.authorizationStatus() == wanted; }));
        settle();
        EXPECT_EQ(told.size(), count) << qPrintable(permission);
    }
}
