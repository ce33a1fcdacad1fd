// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingStatus.h"

#include "AppSettings.h"
#include "Follow.h"
#include "LocationManager.h"
#include "WiFiMonitor.h"

TrackingStatus::TrackingStatus(const AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
                               QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_wifiClient(wifiClient)
    , m_locationManager(locationManager)
{
    for (const QProperty<bool>* setting : {&settings.wifiTrackingEnabled, &settings.firstTime})
        follow(*setting, this, [this] { Q_EMIT changed(); });
}

TrackingStatus::~TrackingStatus() = default;

void TrackingStatus::startMonitoring()
{
    if (m_wifiMonitor)
        return;
    m_wifiMonitor = std::make_unique<WiFiMonitor>(m_wifiClient);
    const auto report = [this] { Q_EMIT changed(); };
    follow(m_wifiMonitor->isWiFiEnabled, m_wifiMonitor.get(), report);
    follow(m_locationManager.defaultValue().locationPermissionStatus, this, report);
}

bool TrackingStatus::isTracking() const
{
    return m_settings.wifiTrackingEnabled;
}

bool TrackingStatus::isSetUp() const
{
    return !m_settings.firstTime;
}

bool TrackingStatus::isWiFiOn() const
{
    return !m_wifiMonitor || m_wifiMonitor->isWiFiEnabled;
}

bool TrackingStatus::isWiFiKnown() const
{
    return !m_wifiMonitor || m_wifiMonitor->isMonitoring();
}

AuthorizationStatus TrackingStatus::permission() const
{
    if (!m_wifiMonitor)
        return AuthorizationStatus::authorizedAlways;
    return m_locationManager.defaultValue().locationPermissionStatus;
}

QString TrackingStatus::text() const
{
    if (!isTracking())
        return tr("Tracking Off");
    if (!isSetUp())
        return tr("Set-up Not Finished");
    return isWiFiUsable() ? tr("Tracking On") : tr("Wi-Fi or Location Off");
}
