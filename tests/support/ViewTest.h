// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BackupService.h"
#include "CalendarTest.h"
#include "FakeWiFiClient.h"
#include "InOfficeCheck.h"
#include "LaunchAtLogin.h"
#include "LocationManager.h"
#include "LoginItem.h"
#include "Notifier.h"
#include "ViewParts.h"

class MockNotifier : public Notifier {
public:
    MOCK_METHOD(void, post, (const Notification&), (override));
    MOCK_METHOD(void, withdraw, (const QString&), (override));
    MOCK_METHOD(void, withdrawChanges, (qint64), (override));
};

class FakeLoginItem : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled; }
    void watch(QObject& /*owner*/, const std::function<void()>& whenChanged) override { changed = whenChanged; }
    void registerItem() override { enabled = true; }
    void unregisterItem() override
    {
        if (isBroken)
            throw PlatformError(u"no room"_s);
        enabled = false;
    }

    std::function<void()> changed;
    bool enabled = false;
    bool isBroken = false;
};

/// What all windows work on: the calendar's parts, and the services of the system as fakes.
class ViewTest : public CalendarTest {
protected:
    void setRadio(bool isOn, int permission)
    {
        wifiClient.interface->powerOn = isOn;
        Q_EMIT wifiClient.powerStateDidChange(u"wlan0"_s);
        authorization.change(AuthorizationStatus(permission));
        QCoreApplication::processEvents();
    }

    testing::NiceMock<FakeWiFiClient> wifiClient;
    testing::NiceMock<FakeAuthorization> authorization;
    MockSystemSettings systemSettings;
    LocationManagerKey locationManager{authorization, systemSettings};
    testing::NiceMock<MockNotifier> notifier;
    InOfficeCheck check{{container, marker, counting, *settings, wifiClient, notifier, clock}};
    FakeLoginItem loginItem;
    LaunchAtLogin launchAtLogin{loginItem};
    BackupService backups{marker, clock};
    const ViewParts parts{context,      marker, history,    counting,        backups, *settings,
                          viewSettings, clock,  wifiClient, locationManager, check,   launchAtLogin};
};
