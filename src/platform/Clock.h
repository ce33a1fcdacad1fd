// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>

#include <QCoroTask>

#include <chrono>

/// Knows the time, and when a new day begins.
class Clock : public QObject {
    Q_OBJECT

public:
    /// The local date and time.
    [[nodiscard]] virtual QDateTime now() const = 0;
    [[nodiscard]] QDate today() const { return now().date(); }

    /// Waits, including any time the computer is suspended; after a suspend it may take a little longer. Throws
    /// Abandoned if the clock is destroyed, and a PlatformError if the system has no timer left.
    [[nodiscard]] virtual QCoro::Task<> sleep(std::chrono::seconds duration) = 0;

Q_SIGNALS:
    /// today() may have changed: midnight has passed, or the clock or the time zone was set.
    void dayChanged();
};
