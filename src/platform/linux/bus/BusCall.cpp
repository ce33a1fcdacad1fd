// SPDX-License-Identifier: GPL-3.0-or-later
#include "BusCall.h"

#include "SignalAwaiter.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

bool BusError::isServiceMissing() const
{
    return QStringList{u"org.freedesktop.DBus.Error.NameHasNoOwner"_s, u"org.freedesktop.DBus.Error.ServiceUnknown"_s,
                       u"org.freedesktop.DBus.Error.Disconnected"_s}
        .contains(m_name);
}

QCoro::Task<QDBusMessage> busCall(QObject* caller, QDBusConnection bus, QDBusMessage call,
                                  std::chrono::milliseconds timeout)
{
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(timeout.count())), caller);
    // Without a bus the call has failed already, and would never signal that.
    if (!watcher->isFinished())
        co_await nextSignal(watcher, &QDBusPendingCallWatcher::finished);
    watcher->deleteLater();
    if (watcher->isError())
        throw BusError(watcher->error().name(), watcher->error().message());
    co_return watcher->reply();
}
