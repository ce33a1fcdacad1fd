// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"
#include "NetworkManager.h"

#include <QDBusServiceWatcher>
#include <QTimer>

/// NetworkManager's permission to scan, which decides whether this program can see which networks are in range. Without
/// NetworkManager there is nothing to permit, and access counts as granted.
class NetworkManagerAuthorization : public LocationAuthorization {
    Q_OBJECT

public:
    explicit NetworkManagerAuthorization(SystemBus& bus);

    void start() override;
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override { return m_status; }
    void requestAlwaysAuthorization() override { request(); }

private:
    void listen();
    QCoro::Task<> read();
    QCoro::Task<> request();

    SystemBus& m_bus;
    NetworkManager m_networkManager;
    QDBusServiceWatcher m_serviceWatcher;
    /// NetworkManager signals a change several times in a row.
    QTimer m_debounce;
    AuthorizationStatus m_status = AuthorizationStatus::authorizedAlways;
};
