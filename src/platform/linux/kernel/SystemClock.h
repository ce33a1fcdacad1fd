// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clock.h"

#include <memory>

class QSocketNotifier;

/// The computer's clock. A kernel timer wakes it at local midnight and when the clock is set.
class SystemClock : public Clock {
    Q_OBJECT

public:
    SystemClock();
    ~SystemClock() override;

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::seconds duration) override;

private:
    void sleepUntilMidnight();
    void wakeUp();

    int m_timer = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
