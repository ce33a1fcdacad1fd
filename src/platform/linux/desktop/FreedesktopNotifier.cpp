// SPDX-License-Identifier: GPL-3.0-or-later
#include "FreedesktopNotifier.h"


#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QLoggingCategory>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logNotifier, "pellory.notifier", QtInfoMsg)

constexpr auto notificationsService = "org.freedesktop.Notifications"_L1;
constexpr auto notificationsPath = "/org/freedesktop/Notifications"_L1;
constexpr auto applicationId = "io.github.pellory.Pellory"_L1;
constexpr auto defaultAction = "default"_L1;
constexpr int timeoutOfTheServer = -1;
constexpr uchar urgencyNormal = 1;

QDBusMessage callOf(const QString& method)
{
    return QDBusMessage::createMethodCall(notificationsService, notificationsPath, notificationsService, method);
}

QVariantMap hints()
{
    return {{u"desktop-entry"_s, applicationId},
            {u"sound-name"_s, u"message-new-instant"_s},
            {u"urgency"_s, QVariant::fromValue(urgencyNormal)}};
}

} // namespace

FreedesktopNotifier::FreedesktopNotifier(std::chrono::milliseconds timeout)
    : m_timeout(timeout)
{
}

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
    followServer();
    try {
        const QStringList abilities = co_await abilitiesOfTheServer();
        const bool isMarkup = abilities.contains("body-markup"_L1);
        const QString body = isMarkup ? notification.subtitle.toHtmlEscaped() : notification.subtitle;
        QStringList actions;
        if (abilities.contains("actions"_L1))
            actions << defaultAction << tr("Open");
        auto call = callOf(u"Notify"_s);
        call << u"Pellory"_s << m_numbers.value(notification.topic) << applicationId << notification.title << body
             << actions << hints() << timeoutOfTheServer;
        const QDBusMessage reply = co_await busCall(this, QDBusConnection::sessionBus(), call, m_timeout);
        const auto number = reply.arguments().value(0).toUInt();
        if (!notification.topic.isEmpty())
            m_numbers.insert(notification.topic, number);
        m_days.insert(number, notification.day);
        if (m_days.size() > 20) // some servers never tell that one has gone
            m_days.erase(m_days.begin());
    } catch (const BusError& error) {
        qCWarning(logNotifier, "Could not notify: %s", error.what());
    }
}

QCoro::Task<QStringList> FreedesktopNotifier::abilitiesOfTheServer()
{
    if (!m_abilities) {
        const QDBusMessage reply =
            co_await busCall(this, QDBusConnection::sessionBus(), callOf(u"GetCapabilities"_s), m_timeout);
        m_abilities = reply.arguments().value(0).toStringList();
    }
    co_return std::as_const(*m_abilities); // which the task would take away otherwise
}

void FreedesktopNotifier::followServer()
{
    if (m_serverWatcher)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_serverWatcher = std::make_unique<QDBusServiceWatcher>(notificationsService, bus);
    // The numbers of a server mean nothing to the next one: there they may be those of another program.
    connect(m_serverWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        m_abilities.reset();
        m_numbers.clear();
        m_days.clear();
    });
    bus.connect(notificationsService, notificationsPath, notificationsService, u"ActivationToken"_s, this,
                SLOT(handleActivationToken(uint, QString)));
    bus.connect(notificationsService, notificationsPath, notificationsService, u"ActionInvoked"_s, this,
                SLOT(handleActionInvoked(uint, QString)));
    bus.connect(notificationsService, notificationsPath, notificationsService, u"NotificationClosed"_s, this,
                SLOT(handleNotificationClosed(uint)));
}

void FreedesktopNotifier::handleActionInvoked(uint number, const QString& action)
{
    const auto [numberOfToken, token] = std::exchange(m_token, {});
    if (m_days.contains(number) && action == defaultAction)
        Q_EMIT activated(m_days.value(number), numberOfToken == number ? token : QString());
}
