// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Whether this program may learn which networks are around it, which is to learn where it is. Values beyond these are
/// possible and mean no.
enum class AuthorizationStatus : qint32 {
    notDetermined = 0,
    restricted = 1,
    denied = 2,
    authorizedAlways = 3,
    authorizedWhenInUse = 4,
};

/// The one rule by which everybody reads a status.
[[nodiscard]] constexpr bool isAccessGranted(AuthorizationStatus status)
{
    return status == AuthorizationStatus::authorizedAlways;
}

/// The permission of this program to learn names of networks.
class LocationAuthorization : public QObject {
    Q_OBJECT

public:
    /// Begins to follow the status. Returns at once; what is found is told by didChangeAuthorization.
    virtual void start() = 0;
    [[nodiscard]] virtual AuthorizationStatus authorizationStatus() const = 0;
    /// Has the system ask the person. Only to be called when the person has asked for it.
    virtual void requestAlwaysAuthorization() = 0;

Q_SIGNALS:
    /// The status may be another one than it was.
    void didChangeAuthorization();
};
