// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerState.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

// Lower is better.
int rank(const NetworkManagerState& state, const WirelessDevice& device)
{
    if (state.primaryDevices.contains(device.path))
        return 0;
    if (isConnected(device.state))
        return 1;
    return isUsable(device.state) ? 2 : 3;
}

} // namespace

const WirelessDevice* NetworkManagerState::defaultDevice() const
{
    const WirelessDevice* best = nullptr;
    for (const WirelessDevice& device : devices) {
        if (isManaged(device.state) && (best == nullptr || rank(*this, device) < rank(*this, *best)))
            best = &device;
    }
    return best;
}

const WirelessDevice* NetworkManagerState::deviceWithInterface(const QString& name) const
{
    const auto found = std::ranges::find(devices, name, &WirelessDevice::interface);
    return found == devices.end() ? nullptr : &*found;
}

bool NetworkManagerState::isPowered(const WirelessDevice& device) const
{
    return isWirelessEnabled && isUsable(device.state);
}

bool NetworkManagerState::isComingUp() const
{
    return isWirelessEnabled && !devices.isEmpty() &&
           std::ranges::none_of(devices, [](const WirelessDevice& device) { return isUsable(device.state); });
}

QList<WiFiNetwork> NetworkManagerState::networksSeenSince(const WirelessDevice& device, std::chrono::seconds time) const
{
    QList<WiFiNetwork> networks;
    for (const QString& path : device.accessPoints) {
        const auto accessPoint = accessPoints.find(path);
        if (accessPoint == accessPoints.end())
            continue; // it went while the objects were being listed
        const bool isActive = path == device.activeAccessPoint;
        if (accessPoint->lastSeen < 0 || (isActive && device.mode == WirelessMode::Hotspot))
            continue;
        const bool isInUse = isActive && isConnected(device.state) && device.mode == WirelessMode::Infrastructure;
        if (isInUse || accessPoint->lastSeen >= time.count())
            networks.append({ssidText(accessPoint->ssid)});
    }
    return networks;
}

bool isAnySeenAgain(const WirelessDevice& device, const NetworkManagerState& before, const NetworkManagerState& now)
{
    return std::ranges::any_of(device.accessPoints, [&](const QString& path) {
        const auto known = before.accessPoints.find(path);
        return known != before.accessPoints.end() && now.accessPoints.value(path).lastSeen > known->lastSeen;
    });
}

std::optional<QString> ssidText(const QByteArray& ssid)
{
    if (std::ranges::all_of(ssid, [](char byte) { return byte == 0; }))
        return std::nullopt;
    // A byte order mark is part of the name, and a name that ends within a character is not UTF-8.
    QStringDecoder utf8(QStringConverter::Utf8,
                        QStringConverter::Flag::ConvertInitialBom | QStringConverter::Flag::Stateless);
    const QString text = utf8.decode(ssid);
    return utf8.hasError() ? QString::fromLatin1(ssid) : text;
}
