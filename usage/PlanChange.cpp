// SPDX-License-Identifier: MIT
#include "PlanChange.h"

#include "BillingPeriod.h"

#include <algorithm>
#include <utility>

namespace usage
{

bool setUsedElsewhere(history::DataPlan &plan, std::int64_t bytes, const QDate &day)
{
    if (bytes == 0) {
        plan.usedElsewhere.reset();
        return true;
    }
    if (!periodOf(plan.period, day))
        return false;
    plan.usedElsewhere = history::UsedElsewhere{bytes, day.toJulianDay()};
    return true;
}

void setWarnings(history::DataPlan &plan, std::vector<int> percentages)
{
    std::sort(percentages.begin(), percentages.end());
    percentages.erase(std::unique(percentages.begin(), percentages.end()), percentages.end());
    plan.warnAtPercent = std::move(percentages);
}

} // namespace usage
