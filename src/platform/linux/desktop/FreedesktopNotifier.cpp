// SPDX-License-Identifier: GPL-3.0-or-later
#include "FreedesktopNotifier.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QLoggingCategory>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logNotifier, "pellory.notifier", QtInfoMsg)

constexpr auto notificationsService = "org.freedesktop.Notifications"_L1;
constexpr auto notificationsPath = "/org/freedesktop/Notifications"_L1;
constexpr auto applicationId = "io.github.pellory.Pellory"_L1;
constexpr auto defaultAction = "default"_L1;
constexpr auto undoAction = "undo"_L1;
constexpr int serverDefaultTimeout = -1;
constexpr uchar urgencyNormal = 1;

QDBusMessage methodCall(const QString& method)
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

FreedesktopNotifier::FreedesktopNotifier() = default;
FreedesktopNotifier::~FreedesktopNotifier() = default;

void FreedesktopNotifier::post(const Notification& notification)
{
    enqueue([this, notification] { return postNow(notification); });
}

void FreedesktopNotifier::withdraw(const QString& topic)
{
    enqueue([this, topic] { return close(m_ids.take(topic)); });
}

void FreedesktopNotifier::withdrawChanges(qint64 group)
{
    enqueue([this, group] {
        const auto found =
            std::ranges::find(std::as_const(m_subjects), group, [](const Subject& about) { return about.group; });
        return close(found == m_subjects.cend() ? 0 : found.key());
    });
}

void FreedesktopNotifier::enqueue(const Job& job)
{
    m_queue.enqueue(job);
    if (!std::exchange(m_isRunning, true))
        QMetaObject::invokeMethod(this, &FreedesktopNotifier::runJobs, Qt::QueuedConnection);
}

// One at a time: the next one of a topic needs the id of the last.
QCoro::Task<> FreedesktopNotifier::runJobs()
{
    while (!m_queue.isEmpty()) {
        const Job next = m_queue.dequeue();
        co_await next();
    }
    m_isRunning = false;
    Q_EMIT delivered();
}

QCoro::Task<> FreedesktopNotifier::postNow(Notification notification)
{
    followServer();
    try {
        const QStringList supported = co_await capabilities();
        const bool hasMarkup = supported.contains("body-markup"_L1);
        const QString body = hasMarkup ? notification.subtitle.toHtmlEscaped() : notification.subtitle;
        QStringList actions;
        if (supported.contains("actions"_L1))
            actions << defaultAction << tr("Open");
        if (!actions.isEmpty() && notification.group != 0)
            actions << undoAction << tr("Undo");
        auto call = methodCall(u"Notify"_s);
        call << u"Pellory"_s << m_ids.value(notification.topic) << applicationId << notification.title << body
             << actions << hints() << serverDefaultTimeout;
        const QDBusMessage reply = co_await busCall(this, QDBusConnection::sessionBus(), call);
        const auto id = reply.arguments().value(0).toUInt();
        if (!notification.topic.isEmpty())
            m_ids.insert(notification.topic, id);
        m_subjects.insert(id, {notification.day, notification.group});
        if (m_subjects.size() > 20) // some servers never report that one is closed
            m_subjects.erase(m_subjects.begin());
    } catch (const BusError& error) {
        qCWarning(logNotifier, "Could not show a notification: %s", error.what());
    }
}

QCoro::Task<> FreedesktopNotifier::close(quint32 id)
{
    if (id == 0) // which no notification has
        co_return;
    auto call = methodCall(u"CloseNotification"_s);
    call << id;
    try {
        co_await busCall(this, QDBusConnection::sessionBus(), call);
    } catch (const BusError& error) {
        qCDebug(logNotifier, "Could not withdraw a notification: %s", error.what());
    }
}

QCoro::Task<QStringList> FreedesktopNotifier::capabilities()
{
    if (!m_capabilities) {
        const QDBusMessage reply =
            co_await busCall(this, QDBusConnection::sessionBus(), methodCall(u"GetCapabilities"_s));
        m_capabilities = reply.arguments().value(0).toStringList();
    }
    co_return std::as_const(*m_capabilities); // the task would move it out otherwise
}

void FreedesktopNotifier::followServer()
{
    if (m_serverWatcher)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_serverWatcher = std::make_unique<QDBusServiceWatcher>(notificationsService, bus);
    // To another server these ids mean nothing, or another program's notifications.
    connect(m_serverWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        m_capabilities.reset();
        m_ids.clear();
        m_subjects.clear();
    });
    bus.connect(notificationsService, notificationsPath, notificationsService, u"ActivationToken"_s, this,
                SLOT(handleActivationToken(uint, QString)));
    bus.connect(notificationsService, notificationsPath, notificationsService, u"ActionInvoked"_s, this,
                SLOT(handleActionInvoked(uint, QString)));
    bus.connect(notificationsService, notificationsPath, notificationsService, u"NotificationClosed"_s, this,
                SLOT(handleNotificationClosed(uint)));
}

void FreedesktopNotifier::handleActionInvoked(uint id, const QString& action)
{
    const auto [tokenId, token] = std::exchange(m_token, {});
    const auto about = m_subjects.constFind(id);
    if (about == m_subjects.constEnd())
        return;
    if (action == defaultAction)
        Q_EMIT activated(about->day, tokenId == id ? token : QString());
    else if (action == undoAction && about->group != 0)
        Q_EMIT undoRequested(about->group);
}
