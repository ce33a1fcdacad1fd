// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusCall.h"
#include "LocationAuthorization.h"
#include "NetworkManagerState.h"

#include <QObject>

#include <QCoroTask>

/// Calls to NetworkManager on the system bus. They throw a BusError, and Abandoned when this is destroyed meanwhile.
class NetworkManager : public QObject {
public:
    /// `timeout` is how long each call waits for its reply.
    explicit NetworkManager(std::chrono::milliseconds timeout = busTimeout)
        : m_timeout(timeout)
    {
    }

    /// All that it knows of Wi-Fi, in one round trip.
    [[nodiscard]] QCoro::Task<NetworkManagerState> readState();

    /// What it lets this program do about scanning, without asking anybody.
    [[nodiscard]] QCoro::Task<AuthorizationStatus> readScanPermission();

    /// Asks a device to scan, which it then does in its own time. With `isInteractive` the system may ask the person
    /// for the permission, and is given time for that.
    QCoro::Task<> requestScan(QString devicePath, bool isInteractive);

private:
    std::chrono::milliseconds m_timeout;
};
