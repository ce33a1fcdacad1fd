// SPDX-License-Identifier: GPL-3.0-or-later
#include "LocationManager.h"

#include "SystemSettings.h"

#include <cstdio>

namespace {

const char* nameOf(AuthorizationStatus status)
{
    switch (status) {
    case AuthorizationStatus::notDetermined:
        return "notDetermined";
    case AuthorizationStatus::restricted:
        return "restricted";
    case AuthorizationStatus::denied:
        return "denied";
    case AuthorizationStatus::authorizedAlways:
        return "authorizedAlways";
    case AuthorizationStatus::authorizedWhenInUse:
        return "authorizedWhenInUse";
    }
    return "unknown";
}

} // namespace

LocationManager::LocationManager(LocationAuthorization& authorization, SystemSettings& systemSettings)
    : locationPermissionStatus(authorization.authorizationStatus())
    , m_authorization(authorization)
    , m_systemSettings(systemSettings)
{
    connect(&authorization, &LocationAuthorization::didChangeAuthorization, this,
            &LocationManager::didChangeAuthorization);
    authorization.start();
}

void LocationManager::openLocationSettings()
{
    m_systemSettings.openLocationSettings();
}

void LocationManager::didChangeAuthorization()
{
    const AuthorizationStatus status = m_authorization.authorizationStatus();
    if (status != locationPermissionStatus)
        QMetaObject::invokeMethod(
            this, [=, this] { update(status); }, Qt::QueuedConnection);
}

void LocationManager::update(AuthorizationStatus status)
{
    const AuthorizationStatus before = locationPermissionStatus;
    // The same change may have been queued twice.
    if (status == before)
        return;
    locationPermissionStatus = status;
    std::printf("Location permission changed from %s to %s\n", nameOf(before), nameOf(status));
    std::fflush(stdout);
}

LocationManager& LocationManagerKey::defaultValue()
{
    if (!m_manager)
        m_manager = std::make_unique<LocationManager>(m_authorization, m_systemSettings);
    return *m_manager;
}
