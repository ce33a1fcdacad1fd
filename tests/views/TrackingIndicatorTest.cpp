// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingIndicator.h"
#include "ContentView.h"
#include "ViewTest.h"

#include <QAccessible>

class TrackingIndicatorTest : public ViewTest {};

TEST_F(TrackingIndicatorTest, tellsWhetherDaysAreMarkedAndCouldBe)
{
    struct Row {
        bool isTracking;
        bool isOn;
        int permission;
        Symbol symbol;
        const char* help;
    };
    const Row rows[]{
        {false, true, 3, Symbol::Wifi, "Tracking Off"},
        {true, true, 3, Symbol::Wifi, "Tracking On"},
        {true, false, 3, Symbol::WifiSlash, "Wi-Fi or Location Off"},
        {false, false, 3, Symbol::WifiSlash, "Tracking Off"},
        {true, true, 0, Symbol::WifiSlash, "Wi-Fi or Location Off"},
        {true, true, 4, Symbol::WifiSlash, "Wi-Fi or Location Off"},
        {true, true, 3, Symbol::Wifi, "Tracking On"},
    };
    EXPECT_CALL(authorization, start).Times(0); // nothing is asked before there is something to see
    ContentView window(parts);
    const auto* indicator = window.findChild<TrackingIndicator*>();
    EXPECT_EQ(indicator->toolTip(), u"Tracking Off"_s);
    auto* accessible = QAccessible::queryAccessibleInterface(window.findChild<TrackingIndicator*>());
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    testing::Mock::VerifyAndClearExpectations(&authorization);
    EXPECT_CALL(authorization, start);
    bool isMonitoring = false;
    EXPECT_CALL(wifiClient, startMonitoringPowerEvents).WillOnce([&] { isMonitoring = true; });
    show(window);
    EXPECT_TRUE(eventually([&] { return isMonitoring; }));
    for (const Row& row : rows) {
        settings->wifiTrackingEnabled = row.isTracking;
        wifiClient.interface->powerOn = row.isOn;
        Q_EMIT wifiClient.powerStateDidChange(u"wlan0"_s);
        authorization.change(AuthorizationStatus(row.permission));
        QCoreApplication::processEvents();
        EXPECT_EQ(indicator->symbol(), row.symbol);
        EXPECT_EQ(indicator->toolTip(), QString::fromUtf8(row.help));
        EXPECT_EQ(accessible->text(QAccessible::Name), indicator->toolTip());
    }
    EXPECT_CALL(wifiClient, stopMonitoringPowerEvents);
}
