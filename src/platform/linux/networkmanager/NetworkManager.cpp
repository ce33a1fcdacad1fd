// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkManager.h"

#include "Delay.h"
#include "NetworkManagerNames.h"
#include "NetworkManagerReader.h"

#include <QDBusArgument>
#include <QDBusConnection>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto timeToAnswerAQuestion = 120s;

// A service that is not running is a fact to be told, and nothing to be started.
QDBusMessage callOf(const QString& path, const QString& interface, const QString& method)
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
    const auto call = callOf(networkManagerObjects, u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    const QDBusMessage reply = co_await busCall(this, QDBusConnection::systemBus(), call, m_timeout);
    NetworkManagerReader reader(reply);
    while (reader.readSome())
        co_await delay(0ms, this);
    co_return reader.state();
}

QCoro::Task<AuthorizationStatus> NetworkManager::readScanPermission()
{
    const auto call = callOf(networkManagerPath, managerInterface, u"GetPermissions"_s);
    const QDBusMessage reply = co_await busCall(this, QDBusConnection::systemBus(), call, m_timeout);
    // To read an answer of another type as this one would end the program.
    QMap<QString, QString> permissions;
    if (reply.signature() == "a{ss}"_L1)
        permissions = qdbus_cast<QMap<QString, QString>>(reply.arguments().value(0));
    const auto scan = permissions.constFind(u"org.freedesktop.NetworkManager.wifi.scan"_s);
    // A version that does not know this permission lets everybody scan.
    co_return scan == permissions.cend() ? AuthorizationStatus::authorizedAlways : statusOf(*scan);
}

QCoro::Task<> NetworkManager::requestScan(QString devicePath, bool isInteractive)
{
    auto call = callOf(devicePath, wirelessInterface, u"RequestScan"_s);
    call << QVariantMap();
    call.setInteractiveAuthorizationAllowed(isInteractive);
    co_await busCall(this, QDBusConnection::systemBus(), call, isInteractive ? timeToAnswerAQuestion : m_timeout);
}
