// SPDX-License-Identifier: MIT
#include "PlanUse.h"

#include "SaturatingMath.h"
#include "SimNumber.h"

#include <algorithm>

namespace usage
{

namespace
{

using history::ConnectionHour;
using history::DataPlan;
using history::Result;
using history::Store;
using history::TimeRange;

using Hours = std::vector<ConnectionHour>;

std::int64_t countedBytes(const DataPlan &plan, const ConnectionHour &hour)
{
    if (!isCovered(plan, hour.profile, hour.sim, hour.isRoaming))
        return 0;
    switch (plan.counts) {
    case DataPlan::Counts::Both:
        return saturatingSum(hour.uploadedBytes, hour.downloadedBytes);
    case DataPlan::Counts::Received:
        return hour.downloadedBytes;
    case DataPlan::Counts::Sent:
        return hour.uploadedBytes;
    }
    return 0;
}

std::int64_t bytesOf(const DataPlan &plan, Hours::const_iterator first, Hours::const_iterator end)
{
    std::int64_t sum = 0;
    for (; first != end; ++first)
        sum = saturatingSum(sum, countedBytes(plan, *first));
    return sum;
}

/// With the hours that begin in the period, and before `untilUtc`.
Result<std::optional<PlanStatus>> statusOfHours(const Store &store, const DataPlan &plan,
                                                std::int64_t utc, std::int64_t untilUtc)
{
    const auto period = periodAt(plan.period, utc);
    if (!period)
        return std::optional<PlanStatus>();
    const auto hours = store.hours({period->beginUtc(), std::min(period->endUtc(), untilUtc)});
    if (!hours)
        return hours.error();
    const std::int64_t bytes = bytesOf(plan, hours.value().begin(), hours.value().end());
    return std::optional(statusOf(plan, *period, bytes, utc));
}

} // namespace

bool isCovered(const DataPlan &plan, const std::string &profile, const std::string &sim,
               bool isRoaming)
{
    if (plan.network != DataPlan::Network::Both &&
        isRoaming != (plan.network == DataPlan::Network::Roaming))
        return false;
    switch (plan.covers) {
    case DataPlan::Covers::Everything:
        return true;
    case DataPlan::Covers::Profile:
        return profile == plan.covered;
    case DataPlan::Covers::Sim:
        return isSimNumber(sim, plan.covered);
    }
    return false;
}

Result<std::optional<PlanStatus>> currentStatus(const Store &store, const DataPlan &plan,
                                                std::int64_t utc)
{
    return statusOfHours(store, plan, utc, TimeRange().untilUtc);
}

Result<std::optional<PlanStatus>> statusAt(const Store &store, const DataPlan &plan,
                                           std::int64_t utc)
{
    return statusOfHours(store, plan, utc, utc);
}

Result<std::vector<PeriodUse>> pastUses(const Store &store, const DataPlan &plan, std::int64_t utc)
{
    std::vector<PeriodUse> uses;
    auto period = periodEndedBy(plan.period, utc);
    if (!period)
        return uses;
    const auto hours = store.hours({TimeRange().fromUtc, period->endUtc()});
    if (!hours)
        return hours.error();
    const auto first = hours.value().begin();
    auto end = hours.value().end();
    for (; period && first != end; period = periodBefore(plan.period, *period)) {
        const auto begin = std::partition_point(
            first, end, [utc = period->beginUtc()](const auto &hour) { return hour.utc < utc; });
        uses.push_back(useOf(plan, *period, bytesOf(plan, begin, end)));
        end = begin;
    }
    return uses;
}

Result<std::vector<PeriodUse>> allUses(const Store &store, const DataPlan &plan, std::int64_t utc)
{
    const auto present = currentStatus(store, plan, utc);
    if (!present)
        return present.error();
    auto uses = pastUses(store, plan, utc);
    if (uses && present.value())
        uses.value().insert(uses.value().begin(), *present.value());
    return uses;
}

} // namespace usage
