// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct Notification {
    QString title;
    QString subtitle;
    /// A notification with a topic takes the place of the last one with the same topic, where that is still on screen.
    QString topic;

    bool operator==(const Notification&) const = default;
};

/// Tells the person something on the desktop, whether or not there is a window.
class Notifier {
public:
    Notifier() = default;
    virtual ~Notifier() = default;
    Q_DISABLE_COPY_MOVE(Notifier)

    /// Shows a notification now, with the default sound. Returns at once; nobody hears of a failure.
    virtual void post(const Notification& notification) = 0;
};
