// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingIndicator.h"
#include "ContentView.h"
#include "ViewTest.h"

class TrackingIndicatorTest : public ViewTest {};

TEST_F(TrackingIndicatorTest, tellsWhetherDaysAreMarkedAndCouldBe)
{
    const QString off = u"Tracking Off"_s, on = u"Tracking On"_s, missing = u"Wi-Fi or Location Off"_s;
    const std::tuple<bool, bool, int, Symbol, QString> rows[]{
        {false, true, 3, Symbol::Wifi, off},          {true, true, 3, Symbol::Wifi, on},
        {true, false, 3, Symbol::WifiSlash, missing}, {false, false, 3, Symbol::WifiSlash, off},
        {true, true, 4, Symbol::WifiSlash, missing},  {true, true, 3, Symbol::Wifi, on},
    };
    EXPECT_CALL(authorization, start).Times(0); // nothing is asked before there is something to see
    ContentView window(parts);
    const auto* indicator = window.findChild<TrackingIndicator*>();
    EXPECT_EQ(indicator->toolTip(), off);
    testing::Mock::VerifyAndClearExpectations(&authorization);
    EXPECT_CALL(authorization, start);
    bool isMonitoring = false;
    EXPECT_CALL(wifiClient, startMonitoringPowerEvents).WillOnce([&] { isMonitoring = true; });
    show(window);
    EXPECT_TRUE(eventually([&] { return isMonitoring; }));
    for (const auto& [isTracking, isOn, permission, symbol, help] : rows) {
        settings->wifiTrackingEnabled = isTracking;
        setRadio(isOn, permission);
        EXPECT_EQ(indicator->symbol(), symbol);
        EXPECT_EQ(indicator->toolTip(), help);
        EXPECT_EQ(indicator->accessibleName(), help);
    }
    EXPECT_CALL(wifiClient, stopMonitoringPowerEvents);
}
