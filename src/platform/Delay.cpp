// SPDX-License-Identifier: GPL-3.0-or-later
#include "Delay.h"

#include "SignalAwaiter.h"

#include <QTimer>

QCoro::Task<> delay(std::chrono::milliseconds duration, QObject* owner)
{
    auto* timer = new QTimer(owner);
    timer->setSingleShot(true);
    timer->start(duration);
    co_await nextSignal(timer, &QTimer::timeout);
    timer->deleteLater();
}
