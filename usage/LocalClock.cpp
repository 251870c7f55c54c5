// SPDX-License-Identifier: MIT
#include "LocalClock.h"

#include <time.h>

#include <optional>

namespace usage
{

namespace
{

// The zone belongs to the process, but only tzset() looks whether it is another one.
std::optional<tm> localTime(std::int64_t utc)
{
    const time_t moment = utc;
    tm local = {};
    if (!localtime_r(&moment, &local))
        return std::nullopt;
    return local;
}

} // namespace

LocalClock::LocalClock()
{
    tzset();
}

QDate LocalClock::dayAt(std::int64_t utc) const
{
    constexpr int firstYear = 1900;
    const auto local = localTime(utc);
    if (!local)
        return {};
    return {local->tm_year + firstYear, local->tm_mon + 1, local->tm_mday};
}

std::int64_t LocalClock::shownAt(std::int64_t utc) const
{
    const auto local = localTime(utc);
    return local ? utc + local->tm_gmtoff : utc;
}

} // namespace usage
