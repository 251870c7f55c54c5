// SPDX-License-Identifier: MIT
#include "DataPlan.h"

#include "CalendarTime.h"
#include "LocalDays.h"
#include "SaturatingMath.h"

namespace usage
{

namespace
{

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

std::optional<int> reachedWarning(const DataPlan &plan, const PeriodUse &use)
{
    std::optional<int> reached;
    if (!plan.amount)
        return reached;
    for (const int percent : plan.warnAtPercent) {
        if (hasReached(use, *plan.amount, percent))
            reached = percent;
    }
    return reached;
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
        useOf(plan, period, saturatingSum(bytes, plan.usedElsewhere));
    status.daysLeft = static_cast<int>(localDay(utc).daysTo(period.end));
    status.leftADay = shareADay(status, status.daysLeft);
    status.pace = paceOf(status, utc);
    status.warning = reachedWarning(plan, status);
    return status;
}

} // namespace usage
