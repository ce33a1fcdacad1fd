// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>

#include <chrono>

class QObject;

/// Waits; time in which the computer is suspended does not count. Throws Abandoned if `owner` is destroyed meanwhile.
[[nodiscard]] QCoro::Task<> delay(std::chrono::milliseconds duration, QObject* owner);
