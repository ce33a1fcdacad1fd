// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <ctime>
#include <map>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/timerfd.h>
#include <unistd.h>

/// The clocks and timers of the kernel, as they are for the one program whose only source includes this: they go on as
/// they really do, and by what is added here.
namespace kernel {

struct Timer {
    clockid_t clock;
    time_t due = 0;
    bool isCancelledBySet = false, isArmed = false;
};
inline std::map<int, Timer> timers;
inline time_t awakeFor = 0, suspendedFor = 0, setBy = 0;

inline time_t read(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec;
}

inline void expireTimers(bool isSet = false)
{
    for (auto& [file, timer] : timers) {
        if (timer.isArmed && ((isSet && timer.isCancelledBySet) || read(timer.clock) >= timer.due)) {
            timer.isArmed = false;
            eventfd_write(file, 1);
        }
    }
}

/// Lets time pass, first awake and then suspended.
inline void pass(std::chrono::seconds awake, std::chrono::seconds suspended = {})
{
    awakeFor += awake.count(), suspendedFor += suspended.count();
    expireTimers();
}

/// Sets the clock on, or back.
inline void setClock(std::chrono::seconds by)
{
    setBy += by.count();
    expireTimers(true);
}

} // namespace kernel

// These take the place of those of the C library, for Qt as for the program. NOLINTBEGIN(misc-definitions-in-headers)
extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    using namespace kernel;
    const long result = syscall(SYS_clock_gettime, clock, time);
    const bool isReal = clock == CLOCK_REALTIME, isBoot = clock == CLOCK_BOOTTIME;
    if (isReal || isBoot || clock == CLOCK_MONOTONIC)
        time->tv_sec += awakeFor + (isReal || isBoot ? suspendedFor : 0) + (isReal ? setBy : 0);
    return static_cast<int>(result);
}

int gettimeofday(timeval* time, void* /*zone*/) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

int timerfd_create(clockid_t clock, int /*flags*/) noexcept
{
    const int file = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    kernel::timers.insert_or_assign(file, kernel::Timer{clock});
    return file;
}

int timerfd_settime(int file, int flags, const itimerspec* until, itimerspec* /*before*/) noexcept
{
    kernel::Timer& timer = kernel::timers.at(file);
    const time_t begin = (flags & TFD_TIMER_ABSTIME) != 0 ? 0 : kernel::read(timer.clock);
    timer = {timer.clock, begin + until->it_value.tv_sec, (flags & TFD_TIMER_CANCEL_ON_SET) != 0, true};
    kernel::expireTimers();
    return 0;
}
}
// NOLINTEND(misc-definitions-in-headers)
