// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerState.h"

#include "NetworkManagerNames.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Interfaces = QMap<QString, QVariantMap>;

QString pathIn(const QVariantMap& properties, const QString& name)
{
    return properties.value(name).value<QDBusObjectPath>().path();
}

QStringList pathsIn(const QVariantMap& properties, const QString& name)
{
    const QVariant value = properties.value(name);
    QStringList paths;
    if (value.canConvert<QDBusArgument>() && value.value<QDBusArgument>().currentSignature() == "ao"_L1) {
        for (const auto& path : qdbus_cast<QList<QDBusObjectPath>>(value))
            paths.append(path.path());
    }
    return paths;
}

WirelessDevice deviceFrom(const QString& path, const Interfaces& interfaces)
{
    const QVariantMap device = interfaces.value(deviceInterface);
    const QVariantMap wireless = interfaces.value(wirelessInterface);
    return {path, device.value(u"Interface"_s).toString(), device.value(u"State"_s).toUInt(),
            pathsIn(wireless, u"AccessPoints"_s), pathIn(wireless, u"ActiveAccessPoint"_s)};
}

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

QList<WiFiNetwork> NetworkManagerState::networksSeenSince(const WirelessDevice& device, std::chrono::seconds time) const
{
    QList<WiFiNetwork> networks;
    for (const QString& path : device.accessPoints) {
        const auto accessPoint = accessPoints.find(path);
        if (accessPoint == accessPoints.end())
            continue; // it has gone while the objects were being listed
        if (accessPoint->lastSeen >= time.count() || path == device.activeAccessPoint)
            networks.append({ssidText(accessPoint->ssid)});
    }
    return networks;
}

NetworkManagerState readNetworkManagerState(const QDBusMessage& managedObjects)
{
    NetworkManagerState state;
    if (managedObjects.signature() != "a{oa{sa{sv}}}"_L1)
        return state;
    QString primaryConnection;
    QHash<QString, QStringList> connections;
    const auto argument = managedObjects.arguments().at(0).value<QDBusArgument>();
    argument.beginMap();
    while (!argument.atEnd()) {
        QDBusObjectPath object;
        Interfaces interfaces;
        argument.beginMapEntry();
        argument >> object >> interfaces;
        argument.endMapEntry();
        const QString path = object.path();
        if (const auto accessPoint = interfaces.constFind(accessPointInterface); accessPoint != interfaces.cend()) {
            state.accessPoints.insert(path, {accessPoint->value(u"Ssid"_s).toByteArray(),
                                             accessPoint->value(u"LastSeen"_s, -1).toLongLong()});
        } else if (interfaces.contains(wirelessInterface)) {
            state.devices.append(deviceFrom(path, interfaces));
        } else if (const auto manager = interfaces.constFind(managerInterface); manager != interfaces.cend()) {
            state.isWirelessEnabled =
                manager->value(u"WirelessEnabled"_s).toBool() && manager->value(u"WirelessHardwareEnabled"_s).toBool();
            primaryConnection = pathIn(*manager, u"PrimaryConnection"_s);
        } else if (const auto active = interfaces.constFind(activeConnectionInterface); active != interfaces.cend()) {
            connections.insert(path, pathsIn(*active, u"Devices"_s));
        }
    }
    argument.endMap();
    state.primaryDevices = connections.value(primaryConnection);
    // The objects come in no order; the numbers of the devices are that in which they were found.
    std::ranges::sort(state.devices, {},
                      [](const WirelessDevice& device) { return std::pair(device.path.size(), device.path); });
    return state;
}

std::optional<QString> ssidText(const QByteArray& ssid)
{
    if (std::ranges::all_of(ssid, [](char byte) { return byte == 0; }))
        return std::nullopt;
    // With a byte order mark the name is another one than without.
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    const QString text = utf8.decode(ssid);
    return utf8.hasError() ? QString::fromLatin1(ssid) : text;
}
