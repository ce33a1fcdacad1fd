// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemClock.h"

#include "BootTimer.h"
#include "Delay.h"
#include "KernelClock.h"
#include "SignalAwaiter.h"

#include <QLoggingCategory>
#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logClock, "pellory.clock", QtInfoMsg)

// After a suspend the radio needs a while, and would count as switched off until then.
constexpr auto radioWakeUpTime = 10s;

std::chrono::seconds timeSuspended()
{
    return readKernelClock(CLOCK_BOOTTIME) - readKernelClock(CLOCK_MONOTONIC);
}

} // namespace

SystemClock::SystemClock(const char* timeZoneLink)
    : m_timer(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC))
    , m_timeZone(timeZoneLink)
{
    if (m_timer < 0) {
        qCWarning(logClock, "Cannot set a timer for midnight: %s", qUtf8Printable(qt_error_string()));
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SystemClock::handleTimer);
    connect(&m_timeZone, &PathWatch::changed, this, &SystemClock::beginDay);
    sleepUntilMidnight();
}

SystemClock::~SystemClock()
{
    m_notifier.reset();
    if (m_timer >= 0)
        close(m_timer);
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTime();
}

QCoro::Task<> SystemClock::sleep(std::chrono::seconds duration)
{
    const auto suspendedBefore = timeSuspended();
    auto* timer = new BootTimer(duration, this);
    co_await nextSignal(timer, &BootTimer::expired);
    timer->deleteLater();
    if (timeSuspended() - suspendedBefore > 2s)
        co_await delay(radioWakeUpTime, this);
}

void SystemClock::sleepUntilMidnight()
{
    // An absolute time also expires after a suspend, and CANCEL_ON_SET wakes us when the clock is set.
    const QDateTime midnight = today().addDays(1).startOfDay();
    itimerspec until{};
    until.it_value.tv_sec = midnight.toSecsSinceEpoch();
    timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &until, nullptr);
}

void SystemClock::handleTimer()
{
    // The read fails with ECANCELED if the clock was set; either way the day may have changed.
    quint64 expirations = 0;
    [[maybe_unused]] const ssize_t size = read(m_timer, &expirations, sizeof expirations);
    beginDay();
}

void SystemClock::beginDay()
{
    sleepUntilMidnight();
    Q_EMIT dayChanged();
}
