// SPDX-License-Identifier: MIT
#include "TotalsCommand.h"

#include "Output.h"
#include "PlanCommands.h"
#include "StoreResult.h"
#include "TotalsText.h"
#include "usage/LocalClock.h"
#include "usage/PlanUse.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace connrecord
{

namespace
{

std::vector<usage::CountedBytes> allCounted(const history::Store &store,
                                            const history::TimeRange &range,
                                            const TotalsRequest &request)
{
    std::vector<usage::CountedBytes> counted;
    if (request.countsAtStart) {
        for (const history::Connection &connection : valueOrFailure(store.list(range)))
            counted.push_back(usage::countedAtStart(connection));
        return counted;
    }
    for (const history::ConnectionHour &hour : valueOrFailure(store.hours(range))) {
        if (!request.isOfFinished || !hour.isOpen)
            counted.push_back(usage::countedWhenMoved(hour));
    }
    return counted;
}

std::vector<usage::CountedBytes> countedOn(const usage::LocalDays &days,
                                           std::vector<usage::CountedBytes> counted)
{
    const usage::LocalClock clock;
    counted.erase(std::remove_if(counted.begin(), counted.end(),
                                 [&](const usage::CountedBytes &each) {
                                     return !days.contains(clock.dayAt(each.utc));
                                 }),
                  counted.end());
    return counted;
}

std::vector<usage::CountedBytes> coveredBy(const history::DataPlan &plan,
                                           std::vector<usage::CountedBytes> counted)
{
    counted.erase(std::remove_if(counted.begin(), counted.end(),
                                 [&plan](const usage::CountedBytes &each) {
                                     return !usage::isCovered(plan, each.profile, each.sim,
                                                              each.isRoaming);
                                 }),
                  counted.end());
    return counted;
}

void checkRequest(const TotalsRequest &request)
{
    if (request.grouping.period == usage::Period::Billing && !request.plan)
        throw Failure(ExitCode::Usage, "--by period needs --plan, whose periods these are.");
}

std::vector<usage::Sum> sumsOf(const std::vector<usage::CountedBytes> &counted,
                               const CommonRequest &common, const usage::Grouping &grouping)
{
    try {
        auto sums = usage::sumsOf(counted, grouping);
        // The sum of nothing is told where there is but one sum.
        if (sums.empty() && grouping.isOneSum())
            sums.emplace_back();
        return sums;
    } catch (const usage::SumTooLarge &error) {
        throw Failure(ExitCode::Refused,
                      "The history \"" + common.storePath + "\" holds more " + error.what() +
                          " than can be added up: the sum is past " +
                          std::to_string(std::numeric_limits<std::int64_t>::max()) +
                          "; ask for a shorter time, or for each profile or month on its own.");
    }
}

} // namespace

void showTotals(const CommonRequest &common, const TotalsRequest &request)
{
    checkRequest(request);
    const usage::LocalDays days = daysOf(request.days);
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    auto counted = countedOn(days, allCounted(store, days.widerRange(), request));
    TotalsForm form{request.grouping, request.countsAtStart};
    if (request.plan) {
        const history::DataPlan plan = planNamed(store, common.storePath, *request.plan);
        form.grouping.billing = plan.period;
        counted = coveredBy(plan, std::move(counted));
    }
    const std::vector<usage::Sum> sums = sumsOf(counted, common, form.grouping);
    Output().write(common.json ? formats::jsonText(toJson(sums, form)) : toTable(sums, form));
}

} // namespace connrecord
