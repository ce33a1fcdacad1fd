// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkManager.h"

#include <QDBusServiceWatcher>
#include <QTimer>

class QDBusMessage;

/// Watches everything that the power of the default interface depends on.
class PowerWatch : public QObject {
    Q_OBJECT

public:
    /// `callTimeout` is how long each bus call may take. Throws a PlatformError if the bus cannot be listened to.
    PowerWatch(SystemBus& bus, std::chrono::milliseconds callTimeout);

Q_SIGNALS:
    /// The power of this interface may have changed, or the interface has gone. Once for changes in quick succession.
    void powerStateDidChange(const QString& interfaceName);

private:
    [[nodiscard]] bool listen();
    QCoro::Task<> report();

    SystemBus& m_bus;
    NetworkManager m_networkManager;
    QDBusServiceWatcher m_serviceWatcher;
    QTimer m_debounce{this};
    /// The last default interface known.
    QString m_interfaceName;

private Q_SLOTS:
    void handleManagerChanged(const QDBusMessage& signal);
    void handleDeviceChanged(uint state, uint oldState);
};
