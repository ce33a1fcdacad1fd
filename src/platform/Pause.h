// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Emission.h"

#include <QTimer>

#include <QCoroTask>

#include <chrono>

/// Waits by a plain timer, which does not count while the computer is suspended. Throws Abandoned when `owner` is
/// destroyed meanwhile.
[[nodiscard]] inline QCoro::Task<> pauseFor(std::chrono::milliseconds duration, QObject* owner)
{
    auto* timer = new QTimer(owner);
    timer->setSingleShot(true);
    timer->start(duration);
    co_await emissionOf(timer, &QTimer::timeout);
    timer->deleteLater();
}
