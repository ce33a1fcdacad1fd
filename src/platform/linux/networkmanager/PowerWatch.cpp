// SPDX-License-Identifier: GPL-3.0-or-later
#include "PowerWatch.h"

#include "NetworkManagerNames.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logPower, "pellory.wifi", QtInfoMsg)

} // namespace

PowerWatch::PowerWatch(std::chrono::milliseconds callTimeout)
    : m_networkManager(callTimeout)
    , m_serviceWatcher(networkManagerService, QDBusConnection::systemBus())
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(100ms);
    connect(&m_debounce, &QTimer::timeout, this, &PowerWatch::report);
    connect(&m_serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_debounce, qOverload<>(&QTimer::start));
    listen();
}

void PowerWatch::listen()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.connect(networkManagerService, networkManagerPath, propertiesInterface, u"PropertiesChanged"_s,
                     {managerInterface}, u"sa{sv}as"_s, this, SLOT(handleManagerChanged(QDBusMessage))) ||
        !bus.connect(networkManagerService, {}, deviceInterface, u"StateChanged"_s, this,
                     SLOT(handleDeviceChanged(uint, uint))))
        throw PlatformError(bus.lastError().message());
    // QtDBus itself sends this one.
    bus.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                SLOT(handleBusLost()));
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

// Qt does not reconnect.
void PowerWatch::handleBusLost()
{
    qCWarning(logPower, "Lost the system bus, and Wi-Fi with it: start Pellory again when the bus is back");
    m_debounce.start();
}
