// SPDX-License-Identifier: MIT
#pragma once

#include "BillingPeriod.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace usage
{

/// What somebody has agreed on with a provider.
struct DataPlan {
    enum class Covers { Everything, Profile, Sim };
    enum class Network { Home, Roaming, Both };
    enum class Counts { Both, Received, Sent };

    std::string name;
    Covers covers = Covers::Everything;
    std::string covered; ///< the profile or the SIM's number; empty for everything
    Network network = Network::Both;
    Counts counts = Counts::Both;
    std::optional<std::int64_t> amount; ///< bytes in a period; none: not limited
    PeriodRule period = MonthlyFrom{};
    /// Bytes of the present period that this history does not know of; may be negative.
    std::int64_t usedElsewhere = 0;
    std::vector<int> warnAtPercent = {80, 100}; ///< rising
};

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
    /// The highest percentage to warn at that has been reached.
    std::optional<int> warning;
};

/// What is left of the plan's amount.
PeriodUse useOf(const DataPlan &plan, const BillingPeriod &period, std::int64_t bytes);

/// How the plan stands at `utc`, which lies in `period`, when the history knows of
/// `bytes` in it. Sums that 64 bits do not hold stop at their ends.
PlanStatus statusOf(const DataPlan &plan, const BillingPeriod &period, std::int64_t bytes,
                    std::int64_t utc);

} // namespace usage
