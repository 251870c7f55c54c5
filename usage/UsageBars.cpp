// SPDX-License-Identifier: MIT
#include "UsageBars.h"

#include "SaturatingMath.h"
#include "Totals.h"

#include <algorithm>
#include <numeric>

namespace usage
{

namespace
{

using history::DataPlan;
using history::PeriodRule;

constexpr qint64 longestSpan = 366; ///< days

BillingPeriod yearOf(const QDate &day)
{
    return {QDate(day.year(), 1, 1), QDate(day.year() + 1, 1, 1)};
}

struct NearestDay {
    QDate day;

    QDate operator()(const history::MonthlyFrom & /*rule*/) const { return day; }
    QDate operator()(const history::EveryDays &rule) const
    {
        return std::max(day, QDate::fromJulianDay(rule.from));
    }
    QDate operator()(const history::OnceBetween &rule) const
    {
        return std::clamp(day, QDate::fromJulianDay(rule.first), QDate::fromJulianDay(rule.last));
    }
};

std::vector<UsageBar> emptyBars(BarUnit unit, const BillingPeriod &span)
{
    std::vector<UsageBar> bars;
    for (QDate day = span.first; day < span.end;
         day = unit == BarUnit::Day ? day.addDays(1) : day.addMonths(1))
        bars.push_back({day, {}});
    return bars;
}

/// Where the bar of a sum stands.
std::size_t placeOf(const Sum &sum, BarUnit unit, const BillingPeriod &span)
{
    constexpr int monthsApart = 100;
    return static_cast<std::size_t>(unit == BarUnit::Day ? sum.period - span.first.toJulianDay()
                                                         : sum.period % monthsApart - 1);
}

void add(std::int64_t &sum, std::int64_t bytes)
{
    sum = saturatingSum(sum, bytes);
}

} // namespace

std::int64_t UsageBar::total() const
{
    return std::accumulate(bytes.begin(), bytes.end(), std::int64_t(0), saturatingSum);
}

BillingPeriod spanNear(const PeriodRule &rule, BarUnit unit, const QDate &day)
{
    const QDate held = std::visit(NearestDay{day}, rule);
    const BillingPeriod year = yearOf(held);
    const auto period = unit == BarUnit::Day ? periodOf(rule, held) : std::nullopt;
    if (!period)
        return year;
    if (period->first.daysTo(period->end) <= longestSpan)
        return *period;
    return {std::max(period->first, year.first), std::min(period->end, year.end)};
}

history::Result<std::vector<UsageBar>> usageBars(const history::Store &store, const DataPlan &plan,
                                                 BarUnit unit, const BillingPeriod &span)
{
    Grouping grouping;
    grouping.period = unit == BarUnit::Day ? Period::Day : Period::Month;
    grouping.byRoaming = true;
    const auto sums = sumsOf(store, {{span.first, span.last()}, plan}, grouping);
    if (!sums)
        return sums.error();
    std::vector<UsageBar> bars = emptyBars(unit, span);
    for (const Sum &sum : sums.value()) {
        auto &bytes = bars[placeOf(sum, unit, span)].bytes;
        bytes[sum.isRoaming ? ReceivedRoaming : ReceivedAtHome] = sum.downloadedBytes;
        bytes[sum.isRoaming ? SentRoaming : SentAtHome] = sum.uploadedBytes;
    }
    return bars;
}

UsageBar sumOf(const std::vector<UsageBar> &bars)
{
    UsageBar sum;
    for (const UsageBar &bar : bars) {
        for (std::size_t part = 0; part < bar.bytes.size(); ++part)
            add(sum.bytes[part], bar.bytes[part]);
    }
    if (!bars.empty())
        sum.first = bars.front().first;
    return sum;
}

} // namespace usage
