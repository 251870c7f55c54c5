// SPDX-License-Identifier: MIT
#include "TotalsCommand.h"

#include "Output.h"
#include "StoreResult.h"
#include "TotalsText.h"

#include <algorithm>
#include <limits>
#include <string>
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
    counted.erase(std::remove_if(counted.begin(), counted.end(),
                                 [&days](const usage::CountedBytes &each) {
                                     return !days.contains(usage::localDay(each.utc));
                                 }),
                  counted.end());
    return counted;
}

std::vector<usage::Sum> sumsOf(const std::vector<usage::CountedBytes> &counted,
                               const CommonRequest &common, const TotalsRequest &request)
{
    try {
        auto sums = usage::sumsOf(counted, request.grouping);
        // The sum of nothing is told where there is but one sum.
        if (sums.empty() && request.grouping.isOneSum())
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
    const usage::LocalDays days = daysOf(request.days);
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    const auto counted = countedOn(days, allCounted(store, days.widerRange(), request));
    const std::vector<usage::Sum> sums = sumsOf(counted, common, request);
    const TotalsForm form{request.grouping, request.countsAtStart};
    Output().write(common.json ? formats::jsonText(toJson(sums, form)) : toTable(sums, form));
}

} // namespace connrecord
