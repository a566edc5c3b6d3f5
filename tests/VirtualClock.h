#pragma once

#include <QtGlobal>

#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

/** Milliseconds of the clock that Qt's timers read: time stands still but where the program lets it pass. */
inline qint64 now = 1000000;

/** Takes the place of the system's in the whole program, of which one source only includes this. Linux. */
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_MONOTONIC)
        return int(syscall(SYS_clock_gettime, clock, time));
    *time = {time_t(now / 1000), long(now % 1000 * 1000000)};
    return 0;
}
