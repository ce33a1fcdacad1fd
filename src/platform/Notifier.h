// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QObject>
#include <QString>

struct Notification {
    QString title;
    QString subtitle;
    /// A notification replaces the last one with the same topic if that is still on screen.
    QString topic;
    /// The day that it is about; invalid if there is none.
    QDate day = {};
    /// The changes of days that it reports and offers to undo, as their group in the store; 0 if there are none.
    qint64 group = 0;

    bool operator==(const Notification&) const = default;
};

/// Shows notifications on the desktop, with or without a window.
class Notifier : public QObject {
    Q_OBJECT

public:
    /// Shows a notification with the default sound. Returns at once; failures are only logged.
    virtual void post(const Notification& notification) = 0;
    /// Takes the last notification with this topic off the screen, if it is still there. Returns at once.
    virtual void withdraw(const QString& topic) = 0;
    /// The same for the notification that reports these changes.
    virtual void withdrawChanges(qint64 group) = 0;

Q_SIGNALS:
    /// The desktop has received what was posted, or it could not.
    void delivered();
    /// The person has clicked a notification about this day. The token lets a window come to the front; it may be
    /// empty.
    void activated(QDate day, const QString& activationToken);
    /// The person wants to take back the changes that a notification reports.
    void undoRequested(qint64 group);
};
