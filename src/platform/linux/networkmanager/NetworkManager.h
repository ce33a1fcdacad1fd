// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusCall.h"
#include "LocationAuthorization.h"
#include "NetworkManagerState.h"

#include <QObject>

#include <QCoroTask>

class SystemBus;

/// Calls to NetworkManager on the system bus. They throw a BusError on failure, and Abandoned if this is destroyed
/// meanwhile.
class NetworkManager : public QObject {
public:
    /// `timeout` is how long each call waits for its reply.
    explicit NetworkManager(SystemBus& bus, std::chrono::milliseconds timeout = busTimeout)
        : m_bus(bus)
        , m_timeout(timeout)
    {
    }

    /// Reads everything about Wi-Fi in one call.
    [[nodiscard]] QCoro::Task<NetworkManagerState> readState();

    /// Reads whether this program may scan, without asking anybody.
    [[nodiscard]] QCoro::Task<AuthorizationStatus> readScanPermission();

    /// Asks a device to scan and returns before it does. If `isInteractive`, the system may ask the person for
    /// permission, and has time for that.
    QCoro::Task<> requestScan(QString devicePath, bool isInteractive);

private:
    SystemBus& m_bus;
    std::chrono::milliseconds m_timeout;
};
