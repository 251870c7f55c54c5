// SPDX-License-Identifier: MIT
#include "PlanWarnings.h"

#include "PlanUse.h"

namespace usage
{

using history::DataPlan;
using history::PlanOutcome;
using history::Result;
using history::Store;

namespace
{

history::JulianDay firstDayOf(const ReachedPlan &reached)
{
    return reached.status.period.first.toJulianDay();
}

} // namespace

Result<std::vector<ReachedPlan>> reachedPlans(const Store &store, std::int64_t utc)
{
    const auto plans = store.plans();
    if (!plans)
        return plans.error();
    std::vector<ReachedPlan> reached;
    for (const DataPlan &plan : plans.value()) {
        if (!plan.amount || plan.warnAtPercent.empty())
            continue;
        const auto status = currentStatus(store, plan, utc);
        if (!status)
            return status.error();
        if (status.value() && !status.value()->warnings.empty())
            reached.push_back({plan, *status.value()});
    }
    return reached;
}

Result<std::vector<int>> pendingWarnings(const Store &store, const ReachedPlan &reached)
{
    const auto given = store.warningsGiven(reached.plan.key, firstDayOf(reached));
    if (!given)
        return given.error();
    return dueWarnings(reached.status, given.value());
}

Result<std::vector<int>> takeWarnings(Store &store, const ReachedPlan &reached)
{
    auto due = pendingWarnings(store, reached);
    if (!due || due.value().empty())
        return due;
    return store.noteWarnings(reached.plan.key, firstDayOf(reached), due.value());
}

Result<std::size_t> returnWarnings(Store &store, const ReachedPlan &reached,
                                   const std::vector<int> &percentages)
{
    return store.forgetWarnings(reached.plan.key, firstDayOf(reached), percentages);
}

Result<PlanOutcome> replacePlan(Store &store, const DataPlan &plan,
                                const std::optional<DataPlan> &former, std::int64_t utc)
{
    const auto status = currentStatus(store, plan, utc);
    if (!status)
        return status.error();
    return store.setPlan(plan, former,
                         status.value() ? status.value()->warnings : std::vector<int>());
}

} // namespace usage
