// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"
#include "LocationAlert.h"
#include "TodayEntries.h"
#include "TrackingIndicator.h"
#include "TrackingPopover.h"
#include "TrackingStatus.h"
#include "ViewTest.h"

#include <QMenu>
#include <QSignalSpy>

class TrackingTest : public ViewTest {};

TEST_F(TrackingTest, indicatorAndPopoverShowTheStatus)
{
    ContentView window(parts);
    const auto& indicator = *window.findChild<TrackingIndicator*>();
    bool isMonitoring = false;
    EXPECT_CALL(wifiClient, startMonitoringPowerEvents).WillOnce([&] { isMonitoring = true; });
    EXPECT_CALL(wifiClient, stopMonitoringPowerEvents);
    show(window);
    EXPECT_TRUE(eventually([&] { return isMonitoring; }));
    click(indicator);
    const QPointer popover = window.findChild<TrackingPopover*>();
    EXPECT_GT(popover->y(), indicator.mapToGlobal(indicator.rect().bottomLeft()).y());
    EXPECT_TRUE(popover->screen()->availableGeometry().contains(popover->geometry()));
    settings->wifiTrackingEnabled = true;
    EXPECT_EQ(indicator.toolTip(), u"Set-up Not Finished"_s);
    for (const bool isBlended : {true, false}) {
        popover->setBlended(isBlended);
        EXPECT_EQ(popover->grab().toImage().pixelColor(0, 0).alpha() == 0, isBlended);
    }
    settings->firstTime = false;
    check.lastCheck = clock.now().addDays(-1);
    check.nextCheck = clock.now().addSecs(1800);
    // Whether the seconds show depends on the version of Qt; a day is named only if it is another one.
    const auto shown = [](const auto& time) { return QLocale().toString(time, QLocale::ShortFormat); };
    const QString off = u"Tracking Off"_s, on = u"Tracking On"_s, lacking = u"Wi-Fi or Location Off"_s;
    // Whether it tracks and Wi-Fi is on, the permission; then what is shown.
    check.lastOutcome = CheckOutcome{CheckOutcome::Failed, u"busy"_s};
    const std::tuple<bool, bool, int, Symbol, QString> rows[]{
        {true, true, 3, Symbol::Wifi, on},
        {true, false, 3, Symbol::WifiSlash, lacking},
        {false, false, 3, Symbol::WifiSlash, off},
        {true, true, 4, Symbol::WifiSlash, lacking},
    };
    for (const auto& [isTracking, isOn, permission, symbol, status] : rows) {
        settings->wifiTrackingEnabled = isTracking;
        setRadio(isOn, permission);
        EXPECT_EQ(indicator.symbol(), symbol);
        EXPECT_EQ(indicator.toolTip(), status);
        EXPECT_EQ(indicator.accessibleName(), status);
        EXPECT_THAT(shownTexts(*popover),
                    testing::ElementsAre(status, u"Wi-Fi"_s, isOn ? u"On"_s : u"Off"_s, u"Location access"_s,
                                         permission == 3 ? u"Allowed"_s : u"Missing"_s, u"Last check"_s,
                                         shown(check.lastCheck.value()), u"Result"_s, u"busy"_s, u"Next check"_s,
                                         isTracking ? shown(QTime(9, 30)) : u"None"_s));
    }
    check.nextCheck = clock.now().addSecs(3600);
    EXPECT_EQ(shownTexts(*popover).last(), shown(QTime(10, 0)));
    EXPECT_TRUE(popover->accessibleDescription().endsWith(shown(QTime(10, 0))));
    const QSignalSpy setUp(&window, &ContentView::setUpRequested);
    settings->firstTime = true;
    click(named<QAbstractButton>(*popover, "finishSetUp"));
    EXPECT_EQ(setUp.size(), 1);
    EXPECT_TRUE(eventually([&] { return popover.isNull(); }));
}

TEST_F(TrackingTest, wiFiIsNotSaidToBeOnWhenTheSystemCannotBeAsked)
{
    EXPECT_CALL(wifiClient, startMonitoringPowerEvents).WillOnce(testing::Throw(PlatformError(u"no bus"_s)));
    TrackingStatus status(*settings, wifiClient, locationManager);
    status.startMonitoring();
    QWidget anchor;
    TrackingPopover popover(status, check, clock, &anchor);
    popover.popUp();
    EXPECT_EQ(shownTexts(popover).at(2), u"Unknown"_s);
    for (const QString& problem : {u"short"_s, u"takes several lines "_s.repeated(9)})
        check.lastOutcome = CheckOutcome{CheckOutcome::Failed, problem};
    EXPECT_EQ(popover.height(), popover.heightForWidth(popover.width()));
}

TEST_F(TrackingTest, theAlertIsVisibleWhileThePermissionIsMissing)
{
    settings->wifiTrackingEnabled = true;
    ContentView window(parts);
    show(window);
    const auto isVisible = [&] {
        const auto* alert = window.findChild<LocationAlert*>();
        return alert != nullptr && alert->isVisible() && alert->y() > 0; // below the header, where it can be clicked
    };
    EXPECT_FALSE(isVisible());
    authorization.change(AuthorizationStatus::notDetermined);
    EXPECT_TRUE(eventually(isVisible));
    auto& access = named<QAbstractButton>(window, "giveAccess");
    EXPECT_CALL(authorization, requestAlwaysAuthorization);
    click(access);
    setRadio(true, 2);
    EXPECT_CALL(systemSettings, openLocationSettings);
    click(access);
    for (const int permission : {3, 1}) {
        authorization.change(AuthorizationStatus(permission));
        EXPECT_TRUE(eventually([&] { return isVisible() == (permission == 1); }));
    }
    click(named<QAbstractButton>(window, "disableTracking"));
    EXPECT_FALSE(settings->wifiTrackingEnabled);
    EXPECT_FALSE(isVisible());
}

TEST_F(TrackingTest, entriesOfAMenuSetTheStateOfToday)
{
    QMenu menu;
    const TodayEntries entries(menu, marker, clock);
    const auto ticked = [&] {
        QStringList texts;
        for (const QAction* entry : menu.actions()) {
            if (entry->isChecked())
                texts.append(entry->text());
        }
        return texts;
    };
    EXPECT_EQ(ticked(), QStringList{u"Unknown"_s});
    menu.actions().at(2)->trigger();
    EXPECT_EQ(ticked(), QStringList{u"In the Office"_s});
    EXPECT_EQ(DayMarker::stateOf(*month(2026, 11), *month(2026, 11)->indexOf(20)), DayState::IN_OFFICE);
    marker.mark({{clock.today(), DayState::VACATION_DAY}, {clock.today().addDays(1), DayState::OUT_OF_OFFICE}},
                ChangedBy::Import);
    EXPECT_EQ(ticked(), QStringList{u"Vacation Day"_s});
    clock.beginDay(clock.today().addDays(1));
    EXPECT_EQ(ticked(), QStringList{u"Out of Office"_s});
}
