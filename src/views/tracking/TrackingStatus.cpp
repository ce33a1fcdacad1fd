// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingStatus.h"

#include "AppSettings.h"
#include "Follow.h"
#include "LocationManager.h"
#include "ViewParts.h"
#include "WiFiMonitor.h"

TrackingStatus::TrackingStatus(const ViewParts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    follow(parts.settings.wifiTrackingEnabled, this, [this] { Q_EMIT changed(); });
}

TrackingStatus::~TrackingStatus() = default;

void TrackingStatus::startMonitoring()
{
    if (m_wifiMonitor)
        return;
    m_wifiMonitor = std::make_unique<WiFiMonitor>(m_parts.wifiClient);
    const auto tell = [this] { Q_EMIT changed(); };
    follow(m_wifiMonitor->isWiFiEnabled, m_wifiMonitor.get(), tell);
    follow(m_parts.locationManager.defaultValue().locationPermissionStatus, this, tell);
}

bool TrackingStatus::isTracking() const
{
    return m_parts.settings.wifiTrackingEnabled;
}

bool TrackingStatus::isWiFiOn() const
{
    return !m_wifiMonitor || m_wifiMonitor->isWiFiEnabled;
}

AuthorizationStatus TrackingStatus::permission() const
{
    if (!m_wifiMonitor)
        return AuthorizationStatus::authorizedAlways;
    return m_parts.locationManager.defaultValue().locationPermissionStatus;
}

QString TrackingStatus::text() const
{
    if (!isTracking())
        return tr("Tracking Off");
    return isWiFiUsable() ? tr("Tracking On") : tr("Wi-Fi or Location Off");
}
