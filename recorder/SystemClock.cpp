// SPDX-License-Identifier: MIT
#include "SystemClock.h"

#include <ctime>
#include <fstream>

namespace recorder
{

namespace
{

timespec now(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return time;
}

} // namespace

std::int64_t SystemClock::utcSeconds() const
{
    return now(CLOCK_REALTIME).tv_sec;
}

std::int64_t SystemClock::bootMilliseconds() const
{
    const timespec time = now(CLOCK_BOOTTIME);
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1000000;
}

std::string currentBootId()
{
    std::string id;
    std::ifstream("/proc/sys/kernel/random/boot_id") >> id;
    return id;
}

} // namespace recorder
