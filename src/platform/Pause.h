// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>

#include <chrono>

class QObject;

/// Waits by a plain timer, which does not count while the computer is suspended. Throws Abandoned when `owner` is
/// destroyed meanwhile.
[[nodiscard]] QCoro::Task<> pauseFor(std::chrono::milliseconds duration, QObject* owner);
