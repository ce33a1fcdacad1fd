// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"

#include <QObject>

#include <memory>

class AppSettings;
class LocationManagerKey;
class WiFiClient;
class WiFiMonitor;

/// Whether automatic tracking is on, and whether it has the Wi-Fi and the permission that it needs.
class TrackingStatus : public QObject {
    Q_OBJECT

public:
    TrackingStatus(const AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
                   QObject* parent = nullptr);
    ~TrackingStatus() override;

    /// Begins to query and follow the system. Until then Wi-Fi counts as on and permission as given.
    void startMonitoring();

    [[nodiscard]] bool isTracking() const;
    [[nodiscard]] bool isWiFiOn() const;
    /// False if Wi-Fi only counts as on, because the system cannot be asked.
    [[nodiscard]] bool isWiFiKnown() const;
    [[nodiscard]] AuthorizationStatus permission() const;
    /// Whether the first run is complete. No automatic checks are made before.
    [[nodiscard]] bool isSetUp() const;
    [[nodiscard]] bool isChecking() const { return isTracking() && isSetUp(); }
    /// Whether Wi-Fi is on and its networks may be seen.
    [[nodiscard]] bool isWiFiUsable() const { return isWiFiOn() && isAccessGranted(permission()); }
    /// The status in a few words, such as "Tracking On".
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    void changed();

private:
    const AppSettings& m_settings;
    WiFiClient& m_wifiClient;
    LocationManagerKey& m_locationManager;
    std::unique_ptr<WiFiMonitor> m_wifiMonitor;
};
