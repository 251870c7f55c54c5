// SPDX-License-Identifier: MIT
#include "LocalDays.h"

#include "LocalClock.h"

#include <QDateTime>
#include <QTimeZone>

namespace usage
{

namespace
{

/// No place's clocks differ from UTC by more.
constexpr int mostDaysFromUtc = 1;

std::int64_t utcMidnight(const QDate &day)
{
    return QDateTime(day, QTime(0, 0), QTimeZone::utc()).toSecsSinceEpoch();
}

} // namespace

QDate localDay(std::int64_t utc)
{
    return LocalClock().dayAt(utc);
}

bool LocalDays::contains(const QDate &day) const
{
    return (first.isNull() || first <= day) && (last.isNull() || day <= last);
}

history::TimeRange LocalDays::widerRange() const
{
    history::TimeRange range;
    if (!first.isNull())
        range.fromUtc = utcMidnight(first.addDays(-mostDaysFromUtc));
    if (!last.isNull())
        range.untilUtc = utcMidnight(last.addDays(1 + mostDaysFromUtc));
    return range;
}

} // namespace usage
