// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeWiFiClient.h"
#include "LocationManager.h"
#include "Testing.h"
#include "WiFiMonitor.h"

#include <QCoreApplication>

TEST(WiFiMonitorTest, isOnUntilToldOtherwiseAndFollowsTheRadio)
{
    testing::StrictMock<FakeWiFiClient> client;
    EXPECT_CALL(client, startMonitoringPowerEvents);
    client.isHeld = true;
    client.interface.reset();
    auto monitor = std::make_unique<WiFiMonitor>(client);
    EXPECT_TRUE(monitor->isWiFiEnabled);
    Q_EMIT client.letGo();
    EXPECT_FALSE(monitor->isWiFiEnabled);
    const std::tuple<QString, bool, bool> events[]{
        {u"wlan0"_s, true, true}, {u"wlan9"_s, true, false}, {u"wlan0"_s, true, true}, {u"wlan0"_s, false, false}};
    for (const auto& [name, isOn, isEnabled] : events) {
        Q_EMIT client.powerStateDidChange(name);
        client.interface = {u"wlan0"_s, isOn}; // read when the answer comes, not when the event does
        Q_EMIT client.letGo();
        EXPECT_EQ(monitor->isWiFiEnabled, isEnabled) << name.toStdString();
    }
    Q_EMIT client.powerStateDidChange(u"wlan0"_s);
    EXPECT_CALL(client, stopMonitoringPowerEvents);
    monitor.reset();
    Q_EMIT client.letGo(); // to a lookup that nobody waits for any more
}

TEST(WiFiMonitorTest, saysWhatItCannotMonitor)
{
    testing::StrictMock<FakeWiFiClient> client;
    client.interface.reset();
    const auto fail = testing::Throw(PlatformError(u"no bus"_s));
    EXPECT_CALL(client, startMonitoringPowerEvents).WillOnce(fail).WillOnce([] {});
    EXPECT_CALL(client, stopMonitoringPowerEvents).WillOnce(fail);
    testing::internal::CaptureStdout();
    EXPECT_TRUE(WiFiMonitor(client).isWiFiEnabled);
    EXPECT_FALSE(WiFiMonitor(client).isWiFiEnabled);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Could not monitor for Wi-Fi events: no bus\nCould not stop wifiClient monitoring\n");
}

TEST(LocationManagerTest, followsAndPrintsThePermission)
{
    testing::StrictMock<FakeAuthorization> authorization; // which nobody asks for anything
    MockSystemSettings systemSettings;
    EXPECT_CALL(authorization, start);
    LocationManager manager(authorization, systemSettings);
    std::string before = "authorizedAlways";
    const std::pair<int, const char*> changes[]{{2, "denied"},     {3, "authorizedAlways"},    {0, "notDetermined"},
                                                {1, "restricted"}, {4, "authorizedWhenInUse"}, {5, "unknown"}};
    for (const auto& [value, name] : changes) {
        const auto status = AuthorizationStatus(value);
        EXPECT_EQ(isAccessGranted(status), value == 3);
        testing::internal::CaptureStdout();
        for (int i = 0; i < 2; ++i)
            authorization.change(status);
        QCoreApplication::processEvents();
        EXPECT_EQ(manager.locationPermissionStatus, status);
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  "Location permission changed from " + std::exchange(before, name) + " to " + name + "\n");
    }
    EXPECT_CALL(systemSettings, openLocationSettings);
    manager.openLocationSettings();
}
