// SPDX-License-Identifier: MIT
#include "LocalClock.h"

#include "PaddedNumber.h"

#include <time.h>

#include <optional>

namespace usage
{

namespace
{

constexpr int firstYear = 1900;

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

void LocalClock::append(std::string &text, std::int64_t utc) const
{
    const auto local = localTime(utc);
    if (!local)
        return;
    appendPadded(text, local->tm_year + firstYear, 4);
    appendPadded(text += '-', local->tm_mon + 1, 2);
    appendPadded(text += '-', local->tm_mday, 2);
    appendPadded(text += ' ', local->tm_hour, 2);
    appendPadded(text += ':', local->tm_min, 2);
    appendPadded(text += ':', local->tm_sec, 2);
}

} // namespace usage
