// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>

// NetworkManager's names on the system bus.
inline constexpr QLatin1StringView networkManagerService("org.freedesktop.NetworkManager");
inline constexpr QLatin1StringView networkManagerPath("/org/freedesktop/NetworkManager");
inline constexpr QLatin1StringView networkManagerObjects("/org/freedesktop");
inline constexpr QLatin1StringView managerInterface = networkManagerService;
inline constexpr QLatin1StringView deviceInterface("org.freedesktop.NetworkManager.Device");
inline constexpr QLatin1StringView wirelessInterface("org.freedesktop.NetworkManager.Device.Wireless");
inline constexpr QLatin1StringView accessPointInterface("org.freedesktop.NetworkManager.AccessPoint");
inline constexpr QLatin1StringView activeConnectionInterface("org.freedesktop.NetworkManager.Connection.Active");
inline constexpr QLatin1StringView propertiesInterface("org.freedesktop.DBus.Properties");
