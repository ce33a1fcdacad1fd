// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"
#include "NetworkManager.h"

#include <QTimer>

#include <memory>

class QDBusServiceWatcher;

/// NetworkManager's own permission to scan: it decides whether this program can learn which networks are in range. A
/// computer without NetworkManager asks nobody for a permission that nobody can give.
class NetworkManagerAuthorization : public LocationAuthorization {
    Q_OBJECT

public:
    NetworkManagerAuthorization();
    ~NetworkManagerAuthorization() override;

    void start() override;
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override { return m_status; }
    void requestAlwaysAuthorization() override { request(); }

private:
    QCoro::Task<> read();
    QCoro::Task<> request();

    NetworkManager m_networkManager;
    std::unique_ptr<QDBusServiceWatcher> m_serviceWatcher;
    /// One change of a permission is told of several times in a row.
    QTimer m_soon;
    AuthorizationStatus m_status = AuthorizationStatus::authorizedAlways;
};
