// SPDX-License-Identifier: GPL-3.0-or-later
#include "PowerWatch.h"

#include "NetworkManagerNames.h"
#include "SystemBus.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logPower, "pellory.wifi", QtInfoMsg)

} // namespace

PowerWatch::PowerWatch(SystemBus& bus, std::chrono::milliseconds callTimeout)
    : m_bus(bus)
    , m_networkManager(bus, callTimeout)
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(100ms);
    connect(&m_debounce, &QTimer::timeout, this, &PowerWatch::report);
    connect(&m_serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_debounce, qOverload<>(&QTimer::start));
    m_serviceWatcher.addWatchedService(networkManagerService);
    connect(&bus, &SystemBus::lost, &m_debounce, qOverload<>(&QTimer::start));
    connect(&bus, &SystemBus::reconnected, this, [this] {
        if (listen())
            m_debounce.start();
    });
    if (!listen())
        throw PlatformError(bus.connection().lastError().message());
}

bool PowerWatch::listen()
{
    QDBusConnection bus = m_bus.connection();
    m_serviceWatcher.setConnection(bus);
    return bus.connect(networkManagerService, networkManagerPath, propertiesInterface, u"PropertiesChanged"_s,
                       {managerInterface}, u"sa{sv}as"_s, this, SLOT(handleManagerChanged(QDBusMessage))) &&
           bus.connect(networkManagerService, {}, deviceInterface, u"StateChanged"_s, this,
                       SLOT(handleDeviceChanged(uint, uint)));
}

QCoro::Task<> PowerWatch::report()
{
    try {
        const NetworkManagerState state = co_await m_networkManager.readState();
        if (const WirelessDevice* device = state.defaultDevice())
            m_interfaceName = device->interface;
    } catch (const BusError& error) {
        qCDebug(logPower, "Cannot read the default interface: %s", error.what());
    }
    Q_EMIT powerStateDidChange(m_interfaceName);
}

void PowerWatch::handleManagerChanged(const QDBusMessage& signal)
{
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    const auto properties = {u"WirelessEnabled"_s, u"WirelessHardwareEnabled"_s, u"Devices"_s, u"PrimaryConnection"_s};
    if (std::ranges::any_of(properties, [&](const QString& property) { return changed.contains(property); }))
        m_debounce.start();
}

void PowerWatch::handleDeviceChanged(uint state, uint oldState)
{
    // A device passes through many states while it connects; only these make a difference.
    if (isUsable(state) != isUsable(oldState) || isConnected(state) != isConnected(oldState))
        m_debounce.start();
}
