// SPDX-License-Identifier: MIT
#include "TotalsCommand.h"

#include "Output.h"
#include "PlanCommands.h"
#include "StoreResult.h"
#include "TotalsText.h"
#include "formats/JsonText.h"

#include <limits>
#include <string>

namespace connrecord
{

namespace
{

void checkRequest(const TotalsRequest &request)
{
    if (request.grouping.period == usage::Period::Billing && !request.plan)
        throw Failure(ExitCode::Usage, "--by period needs --plan, whose periods these are.");
}

void checkSize(const usage::Sum &sum, const CommonRequest &common)
{
    if (!sum.tooLarge.empty())
        throw Failure(ExitCode::Refused,
                      "The history \"" + common.storePath + "\" holds more " + sum.tooLarge +
                          " than can be added up: the sum is past " +
                          std::to_string(std::numeric_limits<std::int64_t>::max()) +
                          "; ask for a shorter time, or for each profile or month on its own.");
}

} // namespace

void showTotals(const CommonRequest &common, const TotalsRequest &request)
{
    checkRequest(request);
    usage::TotalsScope scope{daysOf(request.days), {}, request.countsAtStart, request.isOfFinished};
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    TotalsForm form{request.grouping, request.countsAtStart};
    if (request.plan) {
        scope.coveredBy = planNamed(store, common.storePath, *request.plan);
        form.grouping.billing = scope.coveredBy->period;
    }
    auto sums = valueOrFailure(usage::sumsOf(store, scope, form.grouping));
    // The sum of nothing is told where there is but one sum.
    if (sums.empty() && form.grouping.isOneSum())
        sums.emplace_back();
    for (const usage::Sum &sum : sums)
        checkSize(sum, common);
    Output().write(common.json ? formats::jsonText(toJson(sums, form)) : toTable(sums, form));
}

} // namespace connrecord
