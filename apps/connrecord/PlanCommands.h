// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Selection.h"
#include "history/DataPlan.h"

#include <optional>
#include <string>

namespace connrecord
{

/// A plan, and what of it is to be set, as the user wrote it. What is not given stays, or
/// is that of a plan of which nothing is said.
struct PlanRequest {
    std::string name;
    std::optional<std::string> amount;
    std::optional<std::string> profile;
    std::optional<std::string> sim;
    bool coversEverything = false;
    std::optional<history::DataPlan::Network> network;
    std::optional<history::DataPlan::Counts> counts;
    std::optional<std::string> monthly; ///< the day of the month
    std::optional<std::string> every;   ///< that many days, from the first of `days`
    DaysRequest days;                   ///< once, without `every`
    std::optional<std::string> alreadyUsed;
    std::optional<std::string> warnings; ///< percentages, or none
};

void listPlans(const CommonRequest &common);
/// Makes the plan, or changes the one of that name, and shows it.
void setPlan(const CommonRequest &common, const PlanRequest &request);
void removePlan(const CommonRequest &common, const std::string &name);

/// Of the history in `storePath`. Throws Failure if there is none of that name.
history::DataPlan planNamed(const history::Store &store, const std::string &storePath,
                            const std::string &name);

} // namespace connrecord
