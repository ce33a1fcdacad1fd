// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What NetworkManager is called on the system bus.
inline const QString networkManagerService = QStringLiteral("org.freedesktop.NetworkManager");
inline const QString networkManagerPath = QStringLiteral("/org/freedesktop/NetworkManager");
inline const QString networkManagerObjects = QStringLiteral("/org/freedesktop");
inline const QString managerInterface = networkManagerService;
inline const QString deviceInterface = QStringLiteral("org.freedesktop.NetworkManager.Device");
inline const QString wirelessInterface = QStringLiteral("org.freedesktop.NetworkManager.Device.Wireless");
inline const QString accessPointInterface = QStringLiteral("org.freedesktop.NetworkManager.AccessPoint");
inline const QString activeConnectionInterface = QStringLiteral("org.freedesktop.NetworkManager.Connection.Active");
inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
