// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <ctime>

/// What a clock of the kernel shows, such as CLOCK_BOOTTIME, by which NetworkManager tells when it saw something.
[[nodiscard]] inline std::chrono::seconds readKernelClock(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec);
}
