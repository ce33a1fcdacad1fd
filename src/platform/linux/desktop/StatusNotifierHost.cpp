// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusNotifierHost.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr auto watcherService = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto watcherPath = "/StatusNotifierWatcher"_L1;

} // namespace

void StatusNotifierHost::start()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // With a service name QtDBus would block to look up its owner. No sender needs trust: we ask the watcher anyway.
    for (const QString& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus.connect({}, watcherPath, watcherService, signal, this, SLOT(readHost()));
    auto* watcher = new QDBusServiceWatcher(watcherService, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        report(false);
        readHost();
    });
    readHost();
}

void StatusNotifierHost::readHost()
{
    auto get =
        QDBusMessage::createMethodCall(watcherService, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << watcherService << u"IsStatusNotifierHostRegistered"_s;
    get.setAutoStartService(false);
    auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(get), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, request = ++m_requests] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (request == m_requests)
            report(reply.isValid() && reply.value().variant().toBool());
    });
}

void StatusNotifierHost::report(bool hasHost)
{
    if (m_hasHost == hasHost)
        return;
    m_hasHost = hasHost;
    Q_EMIT hasHost ? appeared() : gone();
}
