// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QObject>
#include <QString>

struct Notification {
    QString title;
    QString subtitle;
    /// A notification with a topic takes the place of the last one with the same topic, where that is still on screen.
    QString topic;
    /// The day that it speaks of; none where it speaks of no day.
    QDate day = {};

    bool operator==(const Notification&) const = default;
};

/// Tells the person something on the desktop, whether or not there is a window.
class Notifier : public QObject {
    Q_OBJECT

public:
    /// Shows a notification now, with the default sound. Returns at once; nobody hears of a failure.
    virtual void post(const Notification& notification) = 0;

Q_SIGNALS:
    /// The person wants to see what a notification speaks of. A token lets a window come to the front; it can be empty.
    void activated(QDate day, const QString& activationToken);
};
