// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>

#include <QCoroTask>

#include <chrono>

/// Tells the time, and when a new day has begun.
class Clock : public QObject {
    Q_OBJECT

public:
    /// The local date and time.
    [[nodiscard]] virtual QDateTime now() const = 0;
    [[nodiscard]] QDate today() const { return now().date(); }

    /// Waits so long, a time that the computer is suspended included; after a suspend it may take a little longer. Is
    /// abandoned when the clock is destroyed; throws a PlatformError when there is nothing to wait with.
    [[nodiscard]] virtual QCoro::Task<> sleep(std::chrono::seconds duration) = 0;

Q_SIGNALS:
    /// today() may be another day than it was: midnight has passed, or the clock was set.
    void dayChanged();
};
