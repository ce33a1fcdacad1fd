// SPDX-License-Identifier: GPL-3.0-or-later
#include "FreedesktopNotifier.h"

#include "BusCall.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QLoggingCategory>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logNotifier, "pellory.notifier", QtInfoMsg)

const auto service = u"org.freedesktop.Notifications"_s;
const auto applicationId = u"io.github.pellory.Pellory"_s;
constexpr int timeoutOfTheServer = -1;
constexpr uchar urgencyNormal = 1;

QDBusMessage callOf(const QString& method)
{
    return QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service, method);
}

QVariantMap hints()
{
    return {{u"desktop-entry"_s, applicationId},
            {u"sound-name"_s, u"message-new-instant"_s},
            {u"urgency"_s, QVariant::fromValue(urgencyNormal)}};
}

} // namespace

FreedesktopNotifier::FreedesktopNotifier() = default;

FreedesktopNotifier::~FreedesktopNotifier() = default;

void FreedesktopNotifier::post(const Notification& notification)
{
    m_waiting.enqueue(notification);
    if (!std::exchange(m_isSending, true))
        QMetaObject::invokeMethod(this, &FreedesktopNotifier::sendAll, Qt::QueuedConnection);
}

// One after the other: the number of the last one of a topic must be known before the next one is sent.
QCoro::Task<> FreedesktopNotifier::sendAll()
{
    while (!m_waiting.isEmpty()) {
        const Notification next = m_waiting.dequeue();
        co_await send(next);
    }
    m_isSending = false;
}

QCoro::Task<> FreedesktopNotifier::send(Notification notification)
{
    try {
        const bool isMarkup = co_await serverReadsMarkup();
        const QString body = isMarkup ? notification.subtitle.toHtmlEscaped() : notification.subtitle;
        auto call = callOf(u"Notify"_s);
        call << u"Pellory"_s << m_numbers.value(notification.topic) << applicationId << notification.title << body
             << QStringList() << hints() << timeoutOfTheServer;
        const QDBusMessage reply = co_await busCall(this, QDBusConnection::sessionBus(), call);
        if (!notification.topic.isEmpty()) {
            forgetWithServer();
            m_numbers.insert(notification.topic, reply.arguments().value(0).toUInt());
        }
    } catch (const BusError& error) {
        qCDebug(logNotifier, "Could not notify: %s", error.what());
    }
}

QCoro::Task<bool> FreedesktopNotifier::serverReadsMarkup()
{
    const QDBusMessage reply = co_await busCall(this, QDBusConnection::sessionBus(), callOf(u"GetCapabilities"_s));
    co_return reply.arguments().value(0).toStringList().contains("body-markup"_L1);
}

// The numbers of a server mean nothing to the next one: there they may be those of another program.
void FreedesktopNotifier::forgetWithServer()
{
    if (m_serverWatcher)
        return;
    m_serverWatcher = std::make_unique<QDBusServiceWatcher>(service, QDBusConnection::sessionBus());
    connect(m_serverWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this, [this] { m_numbers.clear(); });
}
