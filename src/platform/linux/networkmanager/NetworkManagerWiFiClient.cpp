// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerWiFiClient.h"

#include "Delay.h"
#include "KernelClock.h"
#include "NetworkManagerNames.h"
#include "PowerWatch.h"
#include "SignalAwaiter.h"

#include <QLoggingCategory>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

#include <utility>

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logWiFi, "pellory.wifi", QtInfoMsg)

// An access point that has gone stays listed for minutes, and a scan can miss one that is there.
constexpr auto longestMiss = 30s;
// Without a scan of our own only other programs' scans keep the list fresh.
constexpr auto longestMissUnscanned = 60s;

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
        throw PlatformError(
            NetworkManagerWiFiClient::tr("The Wi-Fi interface %1 is no longer there.").arg(interfaceName));
    return *device;
}

} // namespace

NetworkManagerWiFiClient::NetworkManagerWiFiClient(SystemBus& bus, ScanTiming timing)
    : m_bus(bus)
    , m_timing(timing)
    , m_networkManager(bus, timing.callTimeout)
{
    connect(this, &WiFiClient::powerStateDidChange, this, &NetworkManagerWiFiClient::mayBeReady);
}

NetworkManagerWiFiClient::~NetworkManagerWiFiClient() = default;

QCoro::Task<std::optional<WiFiInterface>> NetworkManagerWiFiClient::defaultInterface()
{
    const auto state = co_await readStateIfRunning();
    co_return state ? interfaceOf(*state, state->defaultDevice()) : std::nullopt;
}

QCoro::Task<std::optional<WiFiInterface>> NetworkManagerWiFiClient::readyInterface()
{
    const auto state = co_await readStateOnceReady();
    if (!state)
        throw WiFiServiceMissing(
            tr("NetworkManager is not running, and without it Pellory cannot see which networks are in range."));
    co_return interfaceOf(*state, state->defaultDevice());
}

QCoro::Task<std::optional<WiFiInterface>> NetworkManagerWiFiClient::interfaceWithName(QString name)
{
    const auto state = co_await readStateIfRunning();
    co_return state ? interfaceOf(*state, state->deviceWithInterface(name)) : std::nullopt;
}

QCoro::Task<QList<WiFiNetwork>> NetworkManagerWiFiClient::scanForNetworks(QString interfaceName)
{
    try {
        const QList<WiFiNetwork> networks = co_await findNetworks(interfaceName);
        co_return networks;
    } catch (const BusError& error) {
        qCWarning(logWiFi, "Cannot scan: %s", error.what());
        if (error.name().startsWith(networkManagerService)) // which says what is wrong in a sentence
            throw;
    }
    throw PlatformError(tr("NetworkManager did not complete the scan. It may have been stopped or restarted."));
}

QCoro::Task<QList<WiFiNetwork>> NetworkManagerWiFiClient::findNetworks(QString interfaceName)
{
    const auto start = readKernelClock(CLOCK_BOOTTIME);
    // Callers have just asked for the interface, so it is usually known.
    if (m_state.deviceWithInterface(interfaceName) == nullptr)
        co_await readState();
    const NetworkManagerState before = m_state;
    const ScanOutcome outcome = co_await scan(presentDevice(before, interfaceName).path);
    NetworkManagerState now = co_await readState();
    auto since = start - (outcome == ScanOutcome::NotPermitted ? longestMissUnscanned : longestMiss);
    if (outcome == ScanOutcome::Ended && !isAnySeenAgain(presentDevice(now, interfaceName), before, now)) {
        // iwd: it sees an access point once, and takes it off the list within a minute after it has gone.
        co_await delay(m_timing.lateResultsTime, this);
        now = co_await readState();
        since = 0s;
    }
    co_return now.networksSeenSince(presentDevice(now, interfaceName), since);
}

QCoro::Task<ScanOutcome> NetworkManagerWiFiClient::scan(QString devicePath)
{
    const QPointer<NetworkScan> scan = new NetworkScan(m_bus, m_networkManager, devicePath, this);
    const auto remove = qScopeGuard([scan] {
        if (scan)
            scan->deleteLater();
    });
    const ScanOutcome outcome = co_await scan->run(m_timing);
    co_return outcome;
}

QCoro::Task<NetworkManagerState> NetworkManagerWiFiClient::readState()
{
    m_state = co_await m_networkManager.readState();
    co_return std::as_const(m_state); // the task would move it out otherwise
}

// None if NetworkManager does not run. If it does not answer there is no Wi-Fi.
QCoro::Task<std::optional<NetworkManagerState>> NetworkManagerWiFiClient::readStateIfRunning()
{
    try {
        const NetworkManagerState state = co_await readState();
        co_return state;
    } catch (const BusError& error) {
        qCWarning(logWiFi, "Cannot read Wi-Fi from NetworkManager, so it counts as off: %s", error.what());
        if (error.isServiceMissing())
            co_return std::nullopt;
    }
    co_return NetworkManagerState();
}

QCoro::Task<std::optional<NetworkManagerState>> NetworkManagerWiFiClient::readStateOnceReady()
{
    StateIfRunning state = co_await readStateIfRunning();
    const bool wasRunning = state.has_value();
    const auto isComingUp = [wasRunning](const StateIfRunning& now) {
        return !now || now->isComingUp() || (!wasRunning && now->devices.isEmpty());
    };
    if (!isComingUp(state))
        co_return state;
    try {
        startMonitoringPowerEvents();
    } catch (const PlatformError&) {
        co_return state; // without a bus there is nothing to wait for
    }
    const auto stop = qScopeGuard([self = QPointer(this)] {
        if (self)
            self->stopMonitoringPowerEvents();
    });
    auto* limit = new QTimer(this);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, this, &NetworkManagerWiFiClient::mayBeReady);
    limit->start(m_timing.comingUpTime);
    state = co_await readStateIfRunning(); // it may have changed before it was monitored
    while (limit->isActive() && isComingUp(state)) {
        co_await nextSignal(this, &NetworkManagerWiFiClient::mayBeReady);
        state = co_await readStateIfRunning();
    }
    limit->deleteLater();
    co_return state;
}

void NetworkManagerWiFiClient::startMonitoringPowerEvents()
{
    if (m_monitors == 0) {
        m_powerWatch = std::make_unique<PowerWatch>(m_bus, m_timing.callTimeout);
        connect(m_powerWatch.get(), &PowerWatch::powerStateDidChange, this, &WiFiClient::powerStateDidChange);
    }
    ++m_monitors;
}

void NetworkManagerWiFiClient::stopMonitoringPowerEvents()
{
    if (--m_monitors == 0)
        m_powerWatch.release()->deleteLater(); // it may be what has woken the caller
}
