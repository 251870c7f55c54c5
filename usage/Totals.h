// SPDX-License-Identifier: MIT
#pragma once

#include "LocalDays.h"
#include "history/DataPlan.h"
#include "history/Store.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace usage
{

/// Parts of the local calendar, and the periods of a plan.
enum class Period { All, Hour, Day, Month, Year, Billing };

/// What sums are told apart by.
struct Grouping {
    Period period = Period::All;
    history::PeriodRule billing; ///< of Period::Billing
    bool byProfile = false;
    bool bySim = false;
    bool byOperator = false;
    bool byRoaming = false;

    bool isOneSum() const
    {
        return period == Period::All && !byProfile && !bySim && !byOperator && !byRoaming;
    }
};

/// Which bytes of a history are added up: those of the connections' hours, where they were
/// moved, or whole connections, where they began.
struct TotalsScope {
    LocalDays days;
    std::optional<history::DataPlan> coveredBy; ///< whose bytes alone
    bool countsAtStart = false;                 ///< wholly, and finished connections alone
    bool isOfFinished = false;                  ///< leaves out connections that last
};

/// What one group adds up to. What the sums are not told apart by is empty.
struct Sum {
    std::string profile;
    std::string sim;
    std::string operatorName;
    bool isRoaming = false;
    std::int64_t period = 0; ///< for periodText()
    std::int64_t connections = 0;
    std::int64_t connectedSeconds = 0;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
    /// "bytes sent": what 64 bits do not hold, and so stops at their end; empty if they do.
    std::string tooLarge;
};

/// The sums by profile, SIM, operator, roaming, then period, each connection counted
/// once in each of them; what lies in no billing period is left out.
history::Result<std::vector<Sum>> sumsOf(const history::Store &store, const TotalsScope &scope,
                                         const Grouping &grouping);

/// 2024-10-27T02:00+01:00, 2024-10-27, 2024-10, 2024, or a billing period's first and last day
/// as 2024-10-27/2024-11-26. The hour has its offset, since local time goes through one
/// twice when clocks are set back.
QString periodText(std::int64_t period, const Grouping &grouping);

} // namespace usage
