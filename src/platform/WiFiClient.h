// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <QCoroTask>

#include <optional>

/// A radio of this computer, as it was when it was asked for.
struct WiFiInterface {
    /// Such as "wlan0".
    QString name;
    bool powerOn = false;
};

/// A network that a scan has found.
struct WiFiNetwork {
    /// The name; none where the network hides it.
    std::optional<QString> ssid;
};

/// The Wi-Fi of this computer. Whatever waits is abandoned when the client is destroyed.
class WiFiClient : public QObject {
    Q_OBJECT

public:
    /// The radio that Wi-Fi goes through, or none where there is no radio, or nothing that could tell.
    [[nodiscard]] virtual QCoro::Task<std::optional<WiFiInterface>> defaultInterface() = 0;
    [[nodiscard]] virtual QCoro::Task<std::optional<WiFiInterface>> interfaceWithName(QString name) = 0;

    /// All networks in range of a radio, in no order; one that several access points offer comes several times. Takes
    /// seconds. Throws a PlatformError when the scan fails.
    [[nodiscard]] virtual QCoro::Task<QList<WiFiNetwork>> scanForNetworks(QString interfaceName) = 0;

    /// Makes powerStateDidChange come, until every start has been stopped again. Both throw a PlatformError.
    virtual void startMonitoringPowerEvents() = 0;
    virtual void stopMonitoringPowerEvents() = 0;

Q_SIGNALS:
    /// The power of the default interface may be another one than it was, or the interface has gone.
    void powerStateDidChange(const QString& interfaceName);
};
