// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusCall.h"
#include "Notifier.h"

#include <QHash>
#include <QMap>
#include <QQueue>
#include <QStringList>

#include <QCoroTask>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class QDBusServiceWatcher;

/// Posts to the desktop's notification server (org.freedesktop.Notifications).
class FreedesktopNotifier : public Notifier {
    Q_OBJECT

public:
    FreedesktopNotifier();
    ~FreedesktopNotifier() override;

    void post(const Notification& notification) override;
    void withdraw(const QString& topic) override;
    void withdrawChanges(qint64 group) override;

private:
    /// What a notification on screen is about.
    struct Subject {
        QDate day;
        qint64 group;
    };

    using Job = std::function<QCoro::Task<>()>;

    void enqueue(const Job& job);
    QCoro::Task<> runJobs();
    QCoro::Task<> postNow(Notification notification);
    QCoro::Task<> close(quint32 id);
    QCoro::Task<QStringList> capabilities();
    void followServer();

    QQueue<Job> m_queue;
    bool m_isRunning = false;
    std::optional<QStringList> m_capabilities;
    /// The server's ids of the last notification of each topic.
    QHash<QString, quint32> m_ids;
    /// By the server's ids.
    QMap<quint32, Subject> m_subjects;
    /// The last token, with the id of the notification that it is for.
    std::pair<quint32, QString> m_token;
    std::unique_ptr<QDBusServiceWatcher> m_serverWatcher;

private Q_SLOTS:
    void handleActivationToken(uint id, const QString& token) { m_token = {id, token}; }
    void handleActionInvoked(uint id, const QString& action);
    void handleNotificationClosed(uint id) { m_subjects.remove(id); }
};
