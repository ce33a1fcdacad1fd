// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"

#include <QProperty>

#include <memory>

class SystemSettings;

/// Tracks whether this program is allowed to see the names of networks.
class LocationManager : public QObject {
public:
    LocationManager(LocationAuthorization& authorization, SystemSettings& systemSettings);

    QProperty<AuthorizationStatus> locationPermissionStatus;

    /// For a screen that asks for the permission.
    [[nodiscard]] LocationAuthorization& locationManager() { return m_authorization; }
    void openLocationSettings();

private:
    void didChangeAuthorization();
    void update(AuthorizationStatus status);

    LocationAuthorization& m_authorization;
    SystemSettings& m_systemSettings;
};

/// Gives views the one location manager of the process, which is created on first use.
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
