// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clock.h"
#include "PlatformError.h"
#include "SignalAwaiter.h"

#include <QList>
#include <QTimeZone>

/// A clock that stands still in the morning of a day until it is moved.
class FixedClock : public Clock {
public:
    [[nodiscard]] QDateTime now() const override { return m_now; }

    QCoro::Task<> sleep(std::chrono::seconds duration) override
    {
        sleeps.append(duration);
        if (isBroken)
            throw PlatformError(QStringLiteral("out of timers"));
        const QDateTime end = m_now.addDuration(duration);
        while (m_now < end)
            co_await nextSignal<Clock>(this, &Clock::dayChanged);
    }

    void beginDay(QDate date) { moveTo({date, m_now.time()}); }
    void advance(std::chrono::seconds duration) { moveTo(m_now.addDuration(duration)); }

    /// How long everybody has wanted to sleep, in order.
    QList<std::chrono::seconds> sleeps;
    bool isBroken = false;

private:
    void moveTo(const QDateTime& now)
    {
        m_now = now;
        Q_EMIT dayChanged();
    }

    QDateTime m_now{QDate(2026, 11, 20), QTime(9, 0), QTimeZone::utc()};
};
