// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WiFiClient.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <chrono>

// The states of a device that matter, as NMDeviceState numbers them.
[[nodiscard]] constexpr bool isManaged(uint deviceState)
{
    return deviceState >= 20;
}
[[nodiscard]] constexpr bool isUsable(uint deviceState)
{
    return deviceState >= 30;
}
[[nodiscard]] constexpr bool isConnected(uint deviceState)
{
    return deviceState == 100;
}

/// What NetworkManager knows of an access point.
struct AccessPoint {
    QByteArray ssid;
    /// Seconds since the computer was started, suspended time included; -1 for never.
    qint64 lastSeen = -1;
};

/// What NetworkManager knows of a Wi-Fi radio.
struct WirelessDevice {
    /// The bus object.
    QString path;
    /// Such as "wlan0".
    QString interface;
    uint state = 0;
    QStringList accessPoints;
    /// The access point in use; "/" for none.
    QString activeAccessPoint;
};

/// The part of NetworkManager's objects that has to do with Wi-Fi, at one moment.
struct NetworkManagerState {
    bool isWirelessEnabled = false;
    /// The devices of the connection that everything goes through.
    QStringList primaryDevices;
    QList<WirelessDevice> devices;
    QHash<QString, AccessPoint> accessPoints;

    /// The radio that Wi-Fi goes through: that of the primary connection, else a connected one, else one that could
    /// connect, else one that is off. None when there is no radio that NetworkManager manages.
    [[nodiscard]] const WirelessDevice* defaultDevice() const;
    [[nodiscard]] const WirelessDevice* deviceWithInterface(const QString& name) const;
    [[nodiscard]] bool isPowered(const WirelessDevice& device) const;
    /// The networks of the access points of a radio that were seen since then, or are in use.
    [[nodiscard]] QList<WiFiNetwork> networksSeenSince(const WirelessDevice& device, std::chrono::seconds time) const;
};

/// The text of a network's name: UTF-8, else Latin-1. None for a hidden one, which is empty or all zeros.
[[nodiscard]] std::optional<QString> ssidText(const QByteArray& ssid);
