// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingIndicator.h"

#include "AppSettings.h"
#include "LocationManager.h"
#include "Theme.h"
#include "WiFiMonitor.h"

#include <QPainter>

namespace {

constexpr int extent = 20;

} // namespace

TrackingIndicator::TrackingIndicator(AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
                                     QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_wifiClient(wifiClient)
    , m_locationManager(locationManager)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_trackingNotifier = m_settings.wifiTrackingEnabled.addNotifier([this] { refresh(); });
    refresh();
}

TrackingIndicator::~TrackingIndicator() = default;

void TrackingIndicator::startMonitoring()
{
    if (m_wifiMonitor)
        return;
    m_wifiMonitor = std::make_unique<WiFiMonitor>(m_wifiClient);
    m_wifiNotifier = m_wifiMonitor->isWiFiEnabled.addNotifier([this] { refresh(); });
    m_locationNotifier = m_locationManager.defaultValue().locationPermissionStatus.addNotifier([this] { refresh(); });
    refresh();
}

bool TrackingIndicator::isWiFiUsable() const
{
    return !m_wifiMonitor ||
           (m_wifiMonitor->isWiFiEnabled && isAccessGranted(m_locationManager.defaultValue().locationPermissionStatus));
}

Symbol TrackingIndicator::symbol() const
{
    return isWiFiUsable() ? Symbol::Wifi : Symbol::WifiSlash;
}

QSize TrackingIndicator::sizeHint() const
{
    return {extent, extent};
}

void TrackingIndicator::refresh()
{
    QString status = tr("Tracking On");
    if (!m_settings.wifiTrackingEnabled)
        status = tr("Tracking Off");
    else if (!isWiFiUsable())
        status = tr("Wi-Fi or Location Off");
    setToolTip(status);
    setAccessibleName(status);
    update();
}

void TrackingIndicator::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QColor color = theme.dimText;
    if (m_settings.wifiTrackingEnabled)
        color = isWiFiUsable() ? theme.inOffice : theme.outOfOffice;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSymbol(painter, rect(), symbol(), color);
}
