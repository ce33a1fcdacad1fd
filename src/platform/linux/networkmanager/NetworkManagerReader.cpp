// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerReader.h"

#include "NetworkManagerNames.h"

#include <QDBusMessage>
#include <QDBusObjectPath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Takes a fraction of a frame.
constexpr int objectsPerChunk = 200;

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

WirelessDevice deviceFrom(const QString& path, const BusInterfaces& interfaces)
{
    const QVariantMap device = interfaces.value(deviceInterface);
    const QVariantMap wireless = interfaces.value(wirelessInterface);
    return {path,
            device.value(u"Interface"_s).toString(),
            device.value(u"State"_s).toUInt(),
            WirelessMode(wireless.value(u"Mode"_s).toUInt()),
            pathsIn(wireless, u"AccessPoints"_s),
            pathIn(wireless, u"ActiveAccessPoint"_s)};
}

} // namespace

NetworkManagerReader::NetworkManagerReader(const QDBusMessage& managedObjects)
    : m_isReadable(managedObjects.signature() == "a{oa{sa{sv}}}"_L1)
    , m_objects(managedObjects.arguments().value(0).value<QDBusArgument>())
{
    if (m_isReadable)
        m_objects.beginMap();
}

NetworkManagerReader::~NetworkManagerReader()
{
    // Until the map is ended it keeps the whole message in memory.
    if (m_isReadable)
        m_objects.endMap();
}

bool NetworkManagerReader::readSome()
{
    for (int count = 0; m_isReadable && !m_objects.atEnd(); ++count) {
        if (count == objectsPerChunk)
            return true;
        QDBusObjectPath object;
        BusInterfaces interfaces;
        m_objects.beginMapEntry();
        m_objects >> object >> interfaces;
        m_objects.endMapEntry();
        read(object.path(), interfaces);
    }
    return false;
}

void NetworkManagerReader::read(const QString& path, const BusInterfaces& interfaces)
{
    if (const auto accessPoint = interfaces.constFind(accessPointInterface); accessPoint != interfaces.cend()) {
        m_state.accessPoints.insert(
            path, {accessPoint->value(u"Ssid"_s).toByteArray(), accessPoint->value(u"LastSeen"_s, -1).toLongLong()});
    } else if (interfaces.contains(wirelessInterface)) {
        m_state.devices.append(deviceFrom(path, interfaces));
    } else if (const auto manager = interfaces.constFind(managerInterface); manager != interfaces.cend()) {
        m_state.isWirelessEnabled =
            manager->value(u"WirelessEnabled"_s).toBool() && manager->value(u"WirelessHardwareEnabled"_s).toBool();
        m_primaryConnection = pathIn(*manager, u"PrimaryConnection"_s);
    } else if (const auto active = interfaces.constFind(activeConnectionInterface); active != interfaces.cend()) {
        m_devicesOfConnections.insert(path, pathsIn(*active, u"Devices"_s));
    }
}

NetworkManagerState NetworkManagerReader::state() const
{
    NetworkManagerState state = m_state;
    state.primaryDevices = m_devicesOfConnections.value(m_primaryConnection);
    // Objects come in no order, but NetworkManager numbers devices as it finds them.
    std::ranges::sort(state.devices, {},
                      [](const WirelessDevice& device) { return std::pair(device.path.size(), device.path); });
    return state;
}
