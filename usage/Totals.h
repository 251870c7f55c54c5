// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"
#include "history/Store.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
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

/// Bytes of a connection that count as a whole at one moment.
struct CountedBytes {
    std::int64_t key = 0;
    bool isOpen = false; ///< the key is that of an open connection
    std::string profile;
    std::string sim;
    std::string operatorName;
    bool isRoaming = false;
    std::int64_t utc = 0;
    std::int64_t connectedSeconds = 0;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
};

/// The bytes of a connection in one hour, and those of a whole one at its start.
CountedBytes countedWhenMoved(const history::ConnectionHour &hour);
CountedBytes countedAtStart(const history::Connection &connection);

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
};

/// A sum that 64 bits do not hold; what() names what was added up.
class SumTooLarge : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The sums by profile, SIM, operator, roaming, then period, each connection counted
/// once in each of them; what lies in no billing period is left out. Throws SumTooLarge.
std::vector<Sum> sumsOf(const std::vector<CountedBytes> &counted, const Grouping &grouping);

/// 2024-10-27T02:00+01:00, 2024-10-27, 2024-10, 2024, or a billing period's first and last day
/// as 2024-10-27/2024-11-26. The hour has its offset, since local time goes through one
/// twice when clocks are set back.
QString periodText(std::int64_t period, const Grouping &grouping);

} // namespace usage
