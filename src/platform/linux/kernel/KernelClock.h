// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <ctime>

/// Reads a kernel clock in whole seconds, such as CLOCK_BOOTTIME, the clock of NetworkManager's times.
[[nodiscard]] inline std::chrono::seconds readKernelClock(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec);
}
