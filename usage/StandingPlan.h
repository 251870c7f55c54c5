// SPDX-License-Identifier: MIT
#pragma once

#include "PlanStatus.h"
#include "history/Store.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace usage
{

/// A plan, and how it stands at a moment.
struct StandingPlan {
    history::DataPlan plan;
    std::optional<PlanStatus> status; ///< none between its periods
};

/// From the best to the worst.
enum class PlanState { NoPeriod, Within, Warned, Spent };
PlanState stateOf(const StandingPlan &standing);

/// How all plans stand now, `utc`, by their names.
history::Result<std::vector<StandingPlan>> standingPlans(const history::Store &store,
                                                         std::int64_t utc);

} // namespace usage
