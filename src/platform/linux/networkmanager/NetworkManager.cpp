// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManager.h"

#include "Delay.h"
#include "NetworkManagerNames.h"
#include "NetworkManagerReader.h"
#include "SystemBus.h"

#include <QDBusArgument>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto passwordPromptTimeout = 120s;

// Does not start a service that is not running.
QDBusMessage methodCall(const QString& path, const QString& interface, const QString& method)
{
    auto call = QDBusMessage::createMethodCall(networkManagerService, path, interface, method);
    call.setAutoStartService(false);
    return call;
}

AuthorizationStatus statusOf(const QString& permission)
{
    if (permission == "yes"_L1)
        return AuthorizationStatus::authorizedAlways;
    return permission == "auth"_L1 ? AuthorizationStatus::notDetermined : AuthorizationStatus::denied;
}

} // namespace

QCoro::Task<NetworkManagerState> NetworkManager::readState()
{
    const auto call =
        methodCall(networkManagerObjects, u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    const QDBusMessage reply = co_await busCall(this, m_bus.connection(), call, m_timeout);
    NetworkManagerReader reader(reply);
    while (reader.readSome())
        co_await delay(0ms, this);
    co_return reader.state();
}

QCoro::Task<AuthorizationStatus> NetworkManager::readScanPermission()
{
    const auto call = methodCall(networkManagerPath, managerInterface, u"GetPermissions"_s);
    const QDBusMessage reply = co_await busCall(this, m_bus.connection(), call, m_timeout);
    // Reading a reply of another type would end the program.
    QMap<QString, QString> permissions;
    if (reply.signature() == "a{ss}"_L1)
        permissions = qdbus_cast<QMap<QString, QString>>(reply.arguments().value(0));
    const auto scan = permissions.constFind(u"org.freedesktop.NetworkManager.wifi.scan"_s);
    // A version without this permission lets everybody scan.
    co_return scan == permissions.cend() ? AuthorizationStatus::authorizedAlways : statusOf(*scan);
}

QCoro::Task<> NetworkManager::requestScan(QString devicePath, bool isInteractive)
{
    auto call = methodCall(devicePath, wirelessInterface, u"RequestScan"_s);
    call << QVariantMap();
    call.setInteractiveAuthorizationAllowed(isInteractive);
    co_await busCall(this, m_bus.connection(), call, isInteractive ? passwordPromptTimeout : m_timeout);
}
