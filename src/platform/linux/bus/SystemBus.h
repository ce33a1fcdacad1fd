// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>

/// The system bus, also after a restart: QtDBus never reconnects, so each time there is a connection of another name.
class SystemBus : public QObject {
    Q_OBJECT

public:
    SystemBus();
    ~SystemBus() override;

    /// The current connection; ask for it anew each time. Connects if necessary, and is not connected if there is no
    /// bus.
    [[nodiscard]] QDBusConnection connection();

Q_SIGNALS:
    /// The bus has gone, and with it all services.
    void lost();
    /// There is a new connection, on which nothing is watched yet.
    void reconnected();

private:
    void connectToBus();

    QDBusConnection m_connection{QString()};
    bool m_hasTried = false;
    std::chrono::seconds m_retryDelay{1};
    QTimer m_retry{this};

private Q_SLOTS:
    void handleLoss();
};
