// SPDX-License-Identifier: MIT
#pragma once

#include "PlanStatus.h"
#include "history/Store.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a history knows of the use of plans, the connections that last included. A
/// connection without hours counts at its start, as home.
namespace usage
{

/// Whether the plan is for bytes of that profile and SIM, moved at home or roaming.
bool isCovered(const history::DataPlan &plan, const std::string &profile, const std::string &sim,
               bool isRoaming);

/// How the plan stands now, `utc`; nothing if no period of it holds this moment.
history::Result<std::optional<PlanStatus>>
currentStatus(const history::Store &store, const history::DataPlan &plan, std::int64_t utc);

/// How it stood at `utc`: only what was moved in hours that had begun before.
history::Result<std::optional<PlanStatus>>
statusAt(const history::Store &store, const history::DataPlan &plan, std::int64_t utc);

/// The periods that have ended by `utc`, back to the first of which the history knows
/// something, the latest one first.
history::Result<std::vector<PeriodUse>> pastUses(const history::Store &store,
                                                 const history::DataPlan &plan, std::int64_t utc);

/// Those, behind the one that holds `utc`, if there is one.
history::Result<std::vector<PeriodUse>> allUses(const history::Store &store,
                                                const history::DataPlan &plan, std::int64_t utc);

} // namespace usage
