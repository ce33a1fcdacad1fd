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
    // QtDBus would wait for the owner of a service. Whoever sends these, it is the watcher that is asked.
    for (const QString& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus.connect({}, watcherPath, watcherService, signal, this, SLOT(ask()));
    auto* watcher = new QDBusServiceWatcher(watcherService, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        report(false);
        ask();
    });
    ask();
}

void StatusNotifierHost::ask()
{
    auto get =
        QDBusMessage::createMethodCall(watcherService, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << watcherService << u"IsStatusNotifierHostRegistered"_s;
    get.setAutoStartService(false);
    auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(get), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, question = ++m_questions] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (question == m_questions)
            report(reply.isValid() && reply.value().variant().toBool());
    });
}

void StatusNotifierHost::report(bool isThere)
{
    if (m_isThere == isThere)
        return;
    m_isThere = isThere;
    Q_EMIT isThere ? appeared() : gone();
}
