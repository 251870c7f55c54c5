// SPDX-License-Identifier: MIT
#pragma once

#include "BillingPeriod.h"
#include "history/DataPlan.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace usage
{

/// What was used of a plan in one of its periods.
struct PeriodUse {
    BillingPeriod period;
    std::int64_t used = 0;
    std::optional<std::int64_t> left; ///< negative once it is spent; none without an amount
};

/// How a plan stands at a moment of a period.
struct PlanStatus : PeriodUse {
    int daysLeft = 0;                     ///< today and the period's last day included
    std::optional<std::int64_t> leftADay; ///< rounded down; 0 once nothing is left
    /// What the whole period comes to if it goes on like this; none in its first 24 hours.
    std::optional<std::int64_t> pace;
    /// The percentages to warn at that have been reached, rising.
    std::vector<int> warnings;

    /// Nothing of the amount is left.
    bool isSpent() const { return left && *left <= 0; }
};

/// What is left of the plan's amount.
PeriodUse useOf(const history::DataPlan &plan, const BillingPeriod &period, std::int64_t bytes);

/// How the plan stands at `utc`, which lies in `period`, when the history knows of
/// `bytes` in it. Sums that 64 bits do not hold stop at their ends.
PlanStatus statusOf(const history::DataPlan &plan, const BillingPeriod &period, std::int64_t bytes,
                    std::int64_t utc);

/// The percentages to warn of now, rising: those that have been reached without those that
/// have been `given` in this period.
std::vector<int> dueWarnings(const PlanStatus &status, const std::vector<int> &given);

} // namespace usage
