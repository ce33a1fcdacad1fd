// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"

#include <QProperty>

#include <memory>

class SystemSettings;

/// Knows whether this program may learn the names of networks.
class LocationManager : public QObject {
public:
    LocationManager(LocationAuthorization& authorization, SystemSettings& systemSettings);

    QProperty<AuthorizationStatus> locationPermissionStatus;

    /// Through which a screen asks for the permission.
    [[nodiscard]] LocationAuthorization& locationManager() { return m_authorization; }
    void openLocationSettings();

private:
    void didChangeAuthorization();
    void update(AuthorizationStatus status);

    LocationAuthorization& m_authorization;
    SystemSettings& m_systemSettings;
};

/// Through which views come to the one location manager of the process. It is made when the first of them needs it.
class LocationManagerKey {
public:
    LocationManagerKey(LocationAuthorization& authorization, SystemSettings& systemSettings)
        : m_authorization(authorization)
        , m_systemSettings(systemSettings)
    {
    }

    [[nodiscard]] LocationManager& defaultValue();

private:
    LocationAuthorization& m_authorization;
    SystemSettings& m_systemSettings;
    std::unique_ptr<LocationManager> m_manager;
};
