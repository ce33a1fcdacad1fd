// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Notifier.h"

#include <QHash>
#include <QObject>
#include <QQueue>

#include <QCoroTask>

#include <memory>

class QDBusServiceWatcher;

/// Posts to the notification server of the desktop (org.freedesktop.Notifications).
class FreedesktopNotifier : public QObject, public Notifier {
public:
    FreedesktopNotifier();
    ~FreedesktopNotifier() override;

    void post(const Notification& notification) override;

private:
    QCoro::Task<> sendAll();
    QCoro::Task<> send(Notification notification);
    QCoro::Task<bool> serverReadsMarkup();
    void forgetWithServer();

    QQueue<Notification> m_waiting;
    bool m_isSending = false;
    /// The number that the server has given to the last notification of each topic.
    QHash<QString, quint32> m_numbers;
    std::unique_ptr<QDBusServiceWatcher> m_serverWatcher;
};
