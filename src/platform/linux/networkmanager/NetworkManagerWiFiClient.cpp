// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerWiFiClient.h"

#include "BusCall.h"
#include "Delay.h"
#include "KernelClock.h"
#include "NetworkManagerNames.h"
#include "ScanWatch.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QLoggingCategory>
#include <QPointer>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logWiFi, "pellory.wifi", QtInfoMsg)

// An access point that has gone stays listed for minutes, and one scan can miss one that is there.
constexpr auto longestMiss = 30s;
// Without a scan of our own, what others have scanned for is as good as it gets.
constexpr auto longestMissUnscanned = 60s;

// Where the end of a connection is told.
const auto localPath = u"/org/freedesktop/DBus/Local"_s;
const auto localInterface = u"org.freedesktop.DBus.Local"_s;

std::optional<WiFiInterface> interfaceOf(const NetworkManagerState& state, const WirelessDevice* device)
{
    if (device == nullptr)
        return std::nullopt;
    return WiFiInterface{device->interface, state.isPowered(*device)};
}

const WirelessDevice& presentDevice(const NetworkManagerState& state, const QString& interfaceName)
{
    const WirelessDevice* device = state.deviceWithInterface(interfaceName);
    if (device == nullptr)
        throw PlatformError(WiFiClient::tr("The Wi-Fi interface %1 is no longer there.").arg(interfaceName));
    return *device;
}

} // namespace

NetworkManagerWiFiClient::NetworkManagerWiFiClient(ScanTiming timing)
    : m_timing(timing)
    , m_networkManager(timing.answer)
{
}

NetworkManagerWiFiClient::~NetworkManagerWiFiClient() = default;

QCoro::Task<std::optional<WiFiInterface>> NetworkManagerWiFiClient::defaultInterface()
{
    const NetworkManagerState state = co_await readStateIfThere();
    co_return interfaceOf(state, state.defaultDevice());
}

QCoro::Task<std::optional<WiFiInterface>> NetworkManagerWiFiClient::interfaceWithName(QString name)
{
    const NetworkManagerState state = co_await readStateIfThere();
    co_return interfaceOf(state, state.deviceWithInterface(name));
}

// A NetworkManager that does not answer knows of no radio.
QCoro::Task<NetworkManagerState> NetworkManagerWiFiClient::readStateIfThere()
{
    try {
        const NetworkManagerState state = co_await m_networkManager.readState();
        co_return state;
    } catch (const BusError& error) {
        qCWarning(logWiFi, "NetworkManager does not tell of Wi-Fi, so it counts as off: %s", error.what());
    }
    co_return NetworkManagerState();
}

QCoro::Task<QList<WiFiNetwork>> NetworkManagerWiFiClient::scanForNetworks(QString interfaceName)
{
    const auto start = readKernelClock(CLOCK_BOOTTIME);
    NetworkManagerState state = co_await m_networkManager.readState();
    const bool hasScanned = co_await isScanned(presentDevice(state, interfaceName).path);
    if (hasScanned)
        state = co_await m_networkManager.readState();
    const auto since = start - (hasScanned ? longestMiss : longestMissUnscanned);
    co_return state.networksSeenSince(presentDevice(state, interfaceName), since);
}

// False when there was no leave to scan.
QCoro::Task<bool> NetworkManagerWiFiClient::isScanned(QString devicePath)
{
    const AuthorizationStatus permission = co_await m_networkManager.readScanPermission();
    if (!isAccessGranted(permission)) {
        qCDebug(logWiFi, "No permission to scan: reading what is known");
        co_return false;
    }
    auto* watch = new ScanWatch(devicePath, this);
    const auto remove = qScopeGuard([pointer = QPointer(watch)] {
        if (pointer)
            pointer->deleteLater();
    });
    try {
        co_await m_networkManager.requestScan(devicePath, false);
    } catch (const BusError& error) {
        if (error.name() != "org.freedesktop.NetworkManager.PermissionDenied"_L1)
            throw;
        co_return false;
    }
    qCDebug(logWiFi, "Scanning");
    co_await watch->wait(m_timing.longest);
    co_await delay(m_timing.settling, this);
    co_return true;
}

void NetworkManagerWiFiClient::startMonitoringPowerEvents()
{
    if (m_monitors == 0) {
        QDBusConnection bus = QDBusConnection::systemBus();
        const bool isHeard =
            bus.connect(networkManagerService, networkManagerPath, propertiesInterface, u"PropertiesChanged"_s,
                        {managerInterface}, u"sa{sv}as"_s, this, SLOT(handleManagerChanged(QDBusMessage))) &&
            bus.connect(networkManagerService, {}, deviceInterface, u"StateChanged"_s, this,
                        SLOT(handleDeviceChanged(uint, uint)));
        if (!isHeard)
            throw PlatformError(bus.lastError().message());
        bus.connect({}, localPath, localInterface, u"Disconnected"_s, this, SLOT(handleBusGone()));
        m_serviceWatcher = std::make_unique<QDBusServiceWatcher>(networkManagerService, bus);
        connect(m_serviceWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
                &NetworkManagerWiFiClient::tellPower);
    }
    ++m_monitors;
}

void NetworkManagerWiFiClient::stopMonitoringPowerEvents()
{
    if (--m_monitors > 0)
        return;
    m_serviceWatcher.reset();
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.disconnect({}, localPath, localInterface, u"Disconnected"_s, this, SLOT(handleBusGone()));
    const bool isEnded =
        bus.disconnect(networkManagerService, networkManagerPath, propertiesInterface, u"PropertiesChanged"_s,
                       {managerInterface}, u"sa{sv}as"_s, this, SLOT(handleManagerChanged(QDBusMessage))) &&
        bus.disconnect(networkManagerService, {}, deviceInterface, u"StateChanged"_s, this,
                       SLOT(handleDeviceChanged(uint, uint)));
    if (!isEnded)
        throw PlatformError(bus.lastError().message());
}

void NetworkManagerWiFiClient::handleManagerChanged(const QDBusMessage& signal)
{
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    const auto properties = {u"WirelessEnabled"_s, u"WirelessHardwareEnabled"_s, u"Devices"_s, u"PrimaryConnection"_s};
    if (std::ranges::any_of(properties, [&](const QString& property) { return changed.contains(property); }))
        tellPower();
}

void NetworkManagerWiFiClient::handleDeviceChanged(uint state, uint oldState)
{
    // A device goes through many states while it connects, of which these alone can change anything.
    if (isUsable(state) != isUsable(oldState) || isConnected(state) != isConnected(oldState))
        tellPower();
}

// Qt does not connect again.
void NetworkManagerWiFiClient::handleBusGone()
{
    qCWarning(logWiFi, "The system bus has gone, and with it Wi-Fi: start Pellory again when the bus is back");
    tellPower();
}

QCoro::Task<> NetworkManagerWiFiClient::tellPower()
{
    m_isToldOutdated = true;
    if (m_isTelling)
        co_return;
    m_isTelling = true;
    while (m_isToldOutdated) {
        m_isToldOutdated = false;
        const auto interface = co_await defaultInterface();
        if (interface)
            m_toldInterface = interface->name;
        Q_EMIT powerStateDidChange(m_toldInterface);
    }
    m_isTelling = false;
}
