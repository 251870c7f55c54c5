// SPDX-License-Identifier: MIT
#include "PlanStatus.h"

#include "CalendarTime.h"
#include "LocalDays.h"
#include "SaturatingMath.h"

#include <algorithm>
#include <iterator>

namespace usage
{

namespace
{

using history::DataPlan;

constexpr std::int64_t withoutPace = secondsPerDay;

/// Used by the part of the period that has gone, rounded down.
std::optional<std::int64_t> paceOf(const PeriodUse &use, std::int64_t utc)
{
    const std::int64_t begin = use.period.beginUtc();
    const std::int64_t gone = utc - begin;
    if (gone < withoutPace)
        return std::nullopt;
    return scaledDown(use.used, use.period.endUtc() - begin, gone);
}

std::optional<std::int64_t> shareADay(const PeriodUse &use, int daysLeft)
{
    if (!use.left)
        return std::nullopt;
    return *use.left > 0 ? *use.left / daysLeft : 0;
}

/// Without rounding: 80 % of 99 bytes is reached with the 80th.
bool hasReached(const PeriodUse &use, std::int64_t amount, int percent)
{
    return isProductAtLeast(use.used, 100, amount, percent);
}

std::vector<int> reachedWarnings(const DataPlan &plan, const PeriodUse &use)
{
    std::vector<int> reached;
    if (!plan.amount)
        return reached;
    std::copy_if(plan.warnAtPercent.begin(), plan.warnAtPercent.end(), std::back_inserter(reached),
                 [&](int percent) { return hasReached(use, *plan.amount, percent); });
    return reached;
}

std::int64_t usedElsewhere(const DataPlan &plan, const BillingPeriod &period)
{
    const auto &correction = plan.usedElsewhere;
    const bool counts = correction && period.contains(QDate::fromJulianDay(correction->day));
    return counts ? correction->bytes : 0;
}

} // namespace

PeriodUse useOf(const DataPlan &plan, const BillingPeriod &period, std::int64_t bytes)
{
    PeriodUse use{period, bytes, std::nullopt};
    if (plan.amount)
        use.left = saturatingDifference(*plan.amount, bytes);
    return use;
}

PlanStatus statusOf(const DataPlan &plan, const BillingPeriod &period, std::int64_t bytes,
                    std::int64_t utc)
{
    PlanStatus status;
    static_cast<PeriodUse &>(status) =
        useOf(plan, period, saturatingSum(bytes, usedElsewhere(plan, period)));
    // At least this one, whatever its clocks show in an hour that they go through twice.
    status.daysLeft = std::max(1, static_cast<int>(localDay(utc).daysTo(period.end)));
    status.leftADay = shareADay(status, status.daysLeft);
    status.pace = paceOf(status, utc);
    status.warnings = reachedWarnings(plan, status);
    return status;
}

std::vector<int> dueWarnings(const PlanStatus &status, const std::vector<int> &given)
{
    std::vector<int> due;
    std::copy_if(status.warnings.begin(), status.warnings.end(), std::back_inserter(due),
                 [&given](int percent) {
                     return std::find(given.begin(), given.end(), percent) == given.end();
                 });
    return due;
}

} // namespace usage
