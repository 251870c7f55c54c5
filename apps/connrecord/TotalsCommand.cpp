// SPDX-License-Identifier: MIT
#include "TotalsCommand.h"

#include "ConnectionText.h"
#include "Output.h"
#include "StoreResult.h"

namespace connrecord
{

namespace
{

history::Store::PeriodOf periodsOf(const usage::LocalDays &days, bool byMonth)
{
    return [days, byMonth](std::int64_t startUtc) -> std::optional<int> {
        const QDate day = usage::localDay(startUtc);
        if (!days.contains(day))
            return std::nullopt;
        return byMonth ? periodOfMonth(day) : 0;
    };
}

std::vector<history::Totals> totalsOf(const CommonRequest &common, const TotalsRequest &request)
{
    using Profiles = history::Store::Profiles;
    const usage::LocalDays days = daysOf(request.days);
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    auto totals = valueOrFailure(store.totals(
        days.widerRange(), request.groups.byProfile ? Profiles::Apart : Profiles::Together,
        periodsOf(days, request.groups.byMonth)));
    // The sum of nothing is told where there is but one sum.
    if (totals.empty() && !request.groups.byProfile && !request.groups.byMonth)
        totals.emplace_back();
    return totals;
}

} // namespace

void showTotals(const CommonRequest &common, const TotalsRequest &request)
{
    const std::vector<history::Totals> totals = totalsOf(common, request);
    Output().write(common.json ? formats::jsonText(toJson(totals, request.groups))
                               : toTable(totals, request.groups));
}

} // namespace connrecord
