// SPDX-License-Identifier: GPL-3.0-or-later
#include "WiFiMonitor.h"
#include "FakeWiFiClient.h"
#include "Testing.h"

TEST(WiFiMonitorTest, followsTheRadioAndSaysWhatItCannotMonitor)
{
    testing::StrictMock<FakeWiFiClient> client;
    const auto fail = testing::Throw(PlatformError(u"no bus"_s));
    EXPECT_CALL(client, startMonitoringPowerEvents).WillOnce([] {}).WillOnce(fail);
    client.isHeld = true;
    client.interface.reset();
    auto monitor = std::make_unique<WiFiMonitor>(client);
    EXPECT_TRUE(monitor->isWiFiEnabled);
    Q_EMIT client.letGo();
    EXPECT_FALSE(monitor->isWiFiEnabled);
    for (const bool isOn : {true, false, true}) {
        Q_EMIT client.powerStateDidChange(isOn ? u"wlan0"_s : u"wlan9"_s); // of which the client knows nothing
        client.interface = {u"wlan0"_s, true}; // read when the answer comes, not when the event does
        Q_EMIT client.letGo();
        EXPECT_EQ(monitor->isWiFiEnabled, isOn);
    }
    Q_EMIT client.powerStateDidChange(u"wlan0"_s);
    EXPECT_CALL(client, stopMonitoringPowerEvents).WillOnce(fail);
    testing::internal::CaptureStdout();
    monitor.reset();
    Q_EMIT client.letGo(); // to a lookup that nobody waits for any more
    EXPECT_TRUE(WiFiMonitor(client).isWiFiEnabled);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Could not stop wifiClient monitoring\nCould not monitor for Wi-Fi events: no bus\n");
}
