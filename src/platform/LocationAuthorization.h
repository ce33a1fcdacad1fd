// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Whether this program may see which networks are in range, and so where it is. Other values are possible and mean no.
enum class AuthorizationStatus : qint32 {
    notDetermined = 0,
    restricted = 1,
    denied = 2,
    authorizedAlways = 3,
    authorizedWhenInUse = 4,
};

/// The one rule for what counts as permission.
[[nodiscard]] constexpr bool isAccessGranted(AuthorizationStatus status)
{
    return status == AuthorizationStatus::authorizedAlways;
}

/// This program's permission to see the names of networks.
class LocationAuthorization : public QObject {
    Q_OBJECT

public:
    /// Reads the status and follows its changes. Returns at once; didChangeAuthorization reports the result.
    virtual void start() = 0;
    [[nodiscard]] virtual AuthorizationStatus authorizationStatus() const = 0;
    /// Has the system ask the person. Call it only on the person's request.
    virtual void requestAlwaysAuthorization() = 0;

Q_SIGNALS:
    /// The status may have changed.
    void didChangeAuthorization();
};
