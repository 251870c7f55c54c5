// SPDX-License-Identifier: MIT
#include "LocalClock.h"

#include <time.h>

namespace usage
{

LocalClock::LocalClock()
{
    tzset();
}

// The zone belongs to the process, but only tzset() looks whether it is another one.
QDate LocalClock::dayAt(std::int64_t utc) const
{
    constexpr int firstYear = 1900;
    const time_t moment = utc;
    tm local = {};
    if (!localtime_r(&moment, &local))
        return {};
    return {local.tm_year + firstYear, local.tm_mon + 1, local.tm_mday};
}

} // namespace usage
