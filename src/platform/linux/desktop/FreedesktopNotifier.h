// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusCall.h"
#include "Notifier.h"

#include <QHash>
#include <QMap>
#include <QQueue>
#include <QStringList>

#include <QCoroTask>

#include <memory>
#include <optional>
#include <utility>

class QDBusServiceWatcher;

/// Posts to the notification server of the desktop (org.freedesktop.Notifications).
class FreedesktopNotifier : public Notifier {
    Q_OBJECT

public:
    /// `timeout` is how long the server may take to answer a call.
    explicit FreedesktopNotifier(std::chrono::milliseconds timeout = busTimeout);
    ~FreedesktopNotifier() override;

    void post(const Notification& notification) override;

private:
    QCoro::Task<> sendAll();
    QCoro::Task<> send(Notification notification);
    QCoro::Task<QStringList> abilitiesOfTheServer();
    void followServer();

    std::chrono::milliseconds m_timeout;
    QQueue<Notification> m_waiting;
    bool m_isSending = false;
    std::optional<QStringList> m_abilities;
    /// The number that the server has given to the last notification of each topic.
    QHash<QString, quint32> m_numbers;
    /// What each notification on screen speaks of, by its number.
    QMap<quint32, QDate> m_days;
    /// The last token, and the number of the notification that it is for.
    std::pair<quint32, QString> m_token;
    std::unique_ptr<QDBusServiceWatcher> m_serverWatcher;

private Q_SLOTS:
    void handleActivationToken(uint number, const QString& token) { m_token = {number, token}; }
    void handleActionInvoked(uint number, const QString& action);
    void handleNotificationClosed(uint number) { m_days.remove(number); }
};
