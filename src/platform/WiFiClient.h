// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PlatformError.h"

#include <QList>
#include <QObject>

#include <QCoroTask>

#include <optional>

/// A Wi-Fi radio of this computer, as it was when asked for.
struct WiFiInterface {
    /// Such as "wlan0".
    QString name;
    bool powerOn = false;
};

/// A network that a scan has found.
struct WiFiNetwork {
    /// The name; none if the network hides it.
    std::optional<QString> ssid;
};

/// Nothing on this computer knows of its Wi-Fi: the service for that does not run.
class WiFiServiceMissing : public PlatformError {
public:
    using PlatformError::PlatformError;
};

/// The Wi-Fi of this computer. Calls that are waiting when the client is destroyed throw Abandoned.
class WiFiClient : public QObject {
    Q_OBJECT

public:
    /// The radio in use; none if there is no radio, or no service that knows of one.
    [[nodiscard]] virtual QCoro::Task<std::optional<WiFiInterface>> defaultInterface() = 0;
    /// The same, for a scan: a radio that is just coming up gets some seconds for it. Throws WiFiServiceMissing.
    [[nodiscard]] virtual QCoro::Task<std::optional<WiFiInterface>> readyInterface() { return defaultInterface(); }
    [[nodiscard]] virtual QCoro::Task<std::optional<WiFiInterface>> interfaceWithName(QString name) = 0;

    /// All networks in range of a radio, in no particular order, once per access point. Takes seconds. Throws a
    /// PlatformError if the scan fails.
    [[nodiscard]] virtual QCoro::Task<QList<WiFiNetwork>> scanForNetworks(QString interfaceName) = 0;

    /// Enables powerStateDidChange until each start has been matched by a stop. Both throw a PlatformError on failure.
    virtual void startMonitoringPowerEvents() = 0;
    virtual void stopMonitoringPowerEvents() = 0;

Q_SIGNALS:
    /// The power of the default interface may have changed, or the interface has gone.
    void powerStateDidChange(const QString& interfaceName);
};
