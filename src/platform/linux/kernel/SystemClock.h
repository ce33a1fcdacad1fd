// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clock.h"
#include "PathWatch.h"

#include <memory>

class QSocketNotifier;

/// The computer's clock. The kernel wakes it at local midnight, and when the clock or the time zone is set.
class SystemClock : public Clock {
    Q_OBJECT

public:
    /// The link names the local time zone.
    explicit SystemClock(const char* timeZoneLink = "/etc/localtime");
    ~SystemClock() override;

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::seconds duration) override;

private:
    void sleepUntilMidnight();
    void beginDay();
    void handleTimer();

    int m_timer = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    PathWatch m_timeZone;
};
