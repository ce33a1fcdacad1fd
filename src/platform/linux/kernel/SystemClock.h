// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clock.h"

#include <memory>

class QSocketNotifier;

/// The clock of this computer. It sleeps in the kernel until local midnight, and is woken when the clock is set.
class SystemClock : public Clock {
    Q_OBJECT

public:
    SystemClock();
    ~SystemClock() override;

    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] QCoro::Task<> sleep(std::chrono::seconds duration) override;

private:
    void sleepUntilMidnight();
    void wake();

    int m_timer = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
