// SPDX-License-Identifier: MIT
#include "StandingPlan.h"

#include "PlanUse.h"

namespace usage
{

using history::Result;
using history::Store;

PlanState stateOf(const StandingPlan &standing)
{
    if (!standing.status)
        return PlanState::NoPeriod;
    if (standing.status->isSpent())
        return PlanState::Spent;
    return standing.status->warnings.empty() ? PlanState::Within : PlanState::Warned;
}

Result<std::vector<StandingPlan>> standingPlans(const Store &store, std::int64_t utc)
{
    const auto plans = store.plans();
    if (!plans)
        return plans.error();
    std::vector<StandingPlan> standing;
    for (const history::DataPlan &plan : plans.value()) {
        const auto status = currentStatus(store, plan, utc);
        if (!status)
            return status.error();
        standing.push_back({plan, status.value()});
    }
    return standing;
}

} // namespace usage
