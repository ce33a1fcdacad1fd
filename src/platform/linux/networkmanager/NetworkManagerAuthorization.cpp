// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManagerAuthorization.h"

#include "BusCall.h"
#include "NetworkManagerNames.h"
#include "SystemBus.h"

#include <QDBusError>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logAuthorization, "pellory.authorization", QtInfoMsg)

} // namespace

NetworkManagerAuthorization::NetworkManagerAuthorization(SystemBus& bus)
    : m_bus(bus)
    , m_networkManager(bus)
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(100ms);
    connect(&m_debounce, &QTimer::timeout, this, &NetworkManagerAuthorization::read);
}

void NetworkManagerAuthorization::start()
{
    m_serviceWatcher.addWatchedService(networkManagerService);
    connect(&m_serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &NetworkManagerAuthorization::read);
    connect(&m_bus, &SystemBus::reconnected, this, &NetworkManagerAuthorization::listen);
    connect(&m_bus, &SystemBus::lost, this, &NetworkManagerAuthorization::read);
    listen();
}

void NetworkManagerAuthorization::listen()
{
    QDBusConnection bus = m_bus.connection();
    bus.connect(networkManagerService, networkManagerPath, managerInterface, u"CheckPermissions"_s, &m_debounce,
                SLOT(start()));
    m_serviceWatcher.setConnection(bus);
    read();
}

QCoro::Task<> NetworkManagerAuthorization::read()
{
    auto status = AuthorizationStatus::authorizedAlways;
    try {
        status = co_await m_networkManager.readScanPermission();
    } catch (const BusError& error) {
        qCDebug(logAuthorization, "Cannot read the permission: %s", error.what());
    }
    if (status == m_status)
        co_return;
    m_status = status;
    Q_EMIT didChangeAuthorization();
}

QCoro::Task<> NetworkManagerAuthorization::request()
{
    try {
        const NetworkManagerState state = co_await m_networkManager.readState();
        if (const WirelessDevice* device = state.defaultDevice())
            co_await m_networkManager.requestScan(device->path, true);
    } catch (const BusError& error) {
        qCDebug(logAuthorization, "The permission was not granted: %s", error.what());
    }
    co_await read();
}
