// SPDX-License-Identifier: GPL-3.0-or-later
#include "LocationAlert.h"

#include "AppSettings.h"
#include "Button.h"
#include "LocationManager.h"
#include "TrackingStatus.h"

using namespace Qt::StringLiterals;

LocationAlert::LocationAlert(TrackingStatus& status, AppSettings& settings, LocationManager& manager, QWidget* parent)
    : AlertCard(parent)
    , m_status(status)
    , m_manager(manager)
{
    setTexts(tr("Location Permissions Needed"),
             tr("You have automatic in office tracking enabled, but the app doesn't have access to your location."));
    m_access = addButton(u"giveAccess"_s);
    m_access->setProminent(true);
    auto* disable = addButton(u"disableTracking"_s, tr("Disable Automatic Tracking"));
    connect(m_access, &QAbstractButton::clicked, this, &LocationAlert::requestAccess);
    connect(disable, &QAbstractButton::clicked, this, [&settings] { settings.wifiTrackingEnabled = false; });
    connect(&status, &TrackingStatus::changed, this, &LocationAlert::refresh);
    refresh();
}

void LocationAlert::refresh()
{
    const bool canAsk = m_status.permission() == AuthorizationStatus::notDetermined;
    m_access->setText(canAsk ? tr("Allow Access") : tr("Open System Settings"));
    setVisible(m_status.isTracking() && !isAccessGranted(m_status.permission()));
}

void LocationAlert::requestAccess()
{
    if (m_status.permission() == AuthorizationStatus::notDetermined)
        m_manager.locationManager().requestAlwaysAuthorization();
    else
        m_manager.openLocationSettings();
}
