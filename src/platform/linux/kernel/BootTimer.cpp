// SPDX-License-Identifier: GPL-3.0-or-later
#include "BootTimer.h"

#include "PlatformError.h"

#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

BootTimer::BootTimer(std::chrono::seconds duration, QObject* parent)
    : QObject(parent)
    , m_timer(timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    itimerspec until{};
    until.it_value.tv_sec = duration.count();
    until.it_value.tv_nsec = 1; // zero would disarm the timer
    if (m_timer < 0 || timerfd_settime(m_timer, 0, &until, nullptr) != 0) {
        const PlatformError error(qt_error_string());
        if (m_timer >= 0)
            close(m_timer);
        throw error;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        Q_EMIT expired();
    });
}

BootTimer::~BootTimer()
{
    m_notifier.reset();
    close(m_timer);
}
