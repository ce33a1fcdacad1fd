// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WiFiClient.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

#include <chrono>

// The device states that matter, by the numbers of NMDeviceState.
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

/// The modes of a radio that matter, by the numbers of NM80211Mode.
enum class WirelessMode : uint { Infrastructure = 2, Hotspot = 3 };

/// An access point as NetworkManager knows it.
struct AccessPoint {
    QByteArray ssid;
    /// In seconds of CLOCK_BOOTTIME; -1 for never, as with a network that is only being looked for.
    qint64 lastSeen = -1;
};

/// A Wi-Fi radio as NetworkManager knows it.
struct WirelessDevice {
    /// Of the bus object.
    QString path;
    /// Such as "wlan0".
    QString interface;
    uint state = 0;
    WirelessMode mode = WirelessMode::Infrastructure;
    QStringList accessPoints;
    /// The access point in use; "/" for none.
    QString activeAccessPoint;
};

/// What NetworkManager knows about Wi-Fi at one moment.
struct NetworkManagerState {
    bool isWirelessEnabled = false;
    /// The devices of the primary connection.
    QStringList primaryDevices;
    QList<WirelessDevice> devices;
    QHash<QString, AccessPoint> accessPoints;

    /// The radio of the primary connection, else a connected one, else one that could connect, else one that is off.
    /// Null if NetworkManager manages no radio.
    [[nodiscard]] const WirelessDevice* defaultDevice() const;
    /// Null if there is no such device.
    [[nodiscard]] const WirelessDevice* deviceWithInterface(const QString& name) const;
    [[nodiscard]] bool isPowered(const WirelessDevice& device) const;
    /// Whether Wi-Fi is switched on, but no radio can be used yet.
    [[nodiscard]] bool isComingUp() const;
    /// The networks of a radio whose access points were seen since `time` (of CLOCK_BOOTTIME), or are in use. The
    /// computer's own hotspot is none of them.
    [[nodiscard]] QList<WiFiNetwork> networksSeenSince(const WirelessDevice& device, std::chrono::seconds time) const;
};

/// Whether any access point of the radio that was known before has been seen again since. With iwd that never happens.
[[nodiscard]] bool isAnySeenAgain(const WirelessDevice& device, const NetworkManagerState& before,
                                  const NetworkManagerState& now);

/// A network's name as text: UTF-8, else Latin-1. None for a hidden one, which is empty or all zeros.
[[nodiscard]] std::optional<QString> ssidText(const QByteArray& ssid);
