// SPDX-License-Identifier: MIT
#include "YearResolver.h"

namespace refhost
{

namespace
{

constexpr std::int64_t averageSecondsPerYear = 31556952;

/// The year of that moment, or one beside it when it lies close to its border.
int approximateYear(std::int64_t utc)
{
    return 1970 + static_cast<int>(utc / averageSecondsPerYear);
}

/// The time in the latest year that puts it not after `limit`.
UtcSpan latestNotAfter(CalendarTime time, std::int64_t limit)
{
    for (time.year = approximateYear(limit) + 1;; --time.year) {
        if (!isValid(time))
            continue; // 29 February, which not every year has
        const UtcSpan span = utcSpan(time);
        if (span.earliest <= limit)
            return span;
    }
}

} // namespace

YearResolver::YearResolver(const CalendarTime &end, std::int64_t notAfterUtc)
    : m_endUtc(end.year != 0 ? utcSpan(end).latest : latestNotAfter(end, notAfterUtc).latest)
{
}

std::int64_t YearResolver::utc(const CalendarTime &time) const
{
    return time.year != 0 ? utcSpan(time).earliest : latestNotAfter(time, m_endUtc).earliest;
}

} // namespace refhost
