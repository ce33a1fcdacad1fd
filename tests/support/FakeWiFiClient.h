// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"
#include "PlatformError.h"
#include "SignalAwaiter.h"
#include "SystemSettings.h"
#include "WiFiClient.h"

#include <gmock/gmock.h>

/// The radio wlan0, which answers at once or, when it is held, each time it is let go.
class FakeWiFiClient : public WiFiClient {
    Q_OBJECT

public:
    QCoro::Task<std::optional<WiFiInterface>> defaultInterface() override
    {
        return interfaceWithName(QStringLiteral("wlan0"));
    }
    QCoro::Task<std::optional<WiFiInterface>> interfaceWithName(QString name) override
    {
        if (isHeld)
            co_await nextSignal(this, &FakeWiFiClient::letGo);
        co_return name == QStringLiteral("wlan0") ? interface : std::nullopt;
    }
    QCoro::Task<QList<WiFiNetwork>> scanForNetworks(QString interfaceName) override
    {
        scans.append(interfaceName);
        co_await defaultInterface(); // held as well
        if (isServiceMissing)
            throw WiFiServiceMissing(failure);
        if (!failure.isEmpty())
            throw PlatformError(failure);
        co_return std::as_const(networks); // which the task would take away otherwise
    }
    MOCK_METHOD(void, startMonitoringPowerEvents, (), (override));
    MOCK_METHOD(void, stopMonitoringPowerEvents, (), (override));

    std::optional<WiFiInterface> interface = WiFiInterface{QStringLiteral("wlan0"), true};
    QList<WiFiNetwork> networks{{QStringLiteral("Office")}};
    bool isHeld = false, isServiceMissing = false;
    QString failure;
    QStringList scans;

Q_SIGNALS:
    void letGo();
};

class FakeAuthorization : public LocationAuthorization {
public:
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override { return status; }
    MOCK_METHOD(void, start, (), (override));
    MOCK_METHOD(void, requestAlwaysAuthorization, (), (override));

    void change(AuthorizationStatus to)
    {
        status = to;
        Q_EMIT didChangeAuthorization();
    }

    AuthorizationStatus status = AuthorizationStatus::authorizedAlways;
};

class MockSystemSettings : public SystemSettings {
public:
    MOCK_METHOD(void, openLocationSettings, (), (override));
};
