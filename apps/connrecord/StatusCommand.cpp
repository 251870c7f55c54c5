// SPDX-License-Identifier: MIT
#include "StatusCommand.h"

#include "Complaint.h"
#include "OptionValue.h"
#include "Output.h"
#include "PlanCommands.h"
#include "StatusText.h"
#include "StoreResult.h"
#include "formats/JsonText.h"
#include "usage/PlanUse.h"

#include <algorithm>
#include <ctime>
#include <vector>

namespace connrecord
{

namespace
{

using usage::PlanState;

std::vector<history::DataPlan> plansFor(const history::Store &store, const CommonRequest &common,
                                        const StatusRequest &request)
{
    if (request.plan)
        return {planNamed(store, common.storePath, *request.plan)};
    auto plans = valueOrFailure(store.plans());
    if (plans.empty())
        warn("There is no plan; connrecord plan set makes one.");
    return plans;
}

ExitCode exitCodeOf(PlanState state)
{
    switch (state) {
    case PlanState::NoPeriod:
    case PlanState::Within:
        return ExitCode::Success;
    case PlanState::Warned:
        return ExitCode::Warned;
    case PlanState::Spent:
        return ExitCode::Spent;
    }
    return ExitCode::Success;
}

} // namespace

ExitCode showStatus(const CommonRequest &common, const StatusRequest &request)
{
    const std::int64_t utc =
        request.at ? optionValue("--at", *request.at, formats::fieldTime) : std::time(nullptr);
    const auto statusOf = request.at ? usage::statusAt : usage::currentStatus;
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    std::vector<PlanReport> standing;
    for (const history::DataPlan &plan : plansFor(store, common, request)) {
        standing.push_back({{plan, valueOrFailure(statusOf(store, plan, utc))}, {}});
        if (common.json)
            standing.back().past = valueOrFailure(usage::pastUses(store, plan, utc));
    }
    Output().write(common.json ? formats::jsonText(toJson(standing)) : toTable(standing));
    ExitCode worst = ExitCode::Success;
    for (const PlanReport &each : standing)
        worst = std::max(worst, exitCodeOf(stateOf(each)));
    return worst;
}

} // namespace connrecord
