// SPDX-License-Identifier: MIT
#pragma once

#include "BillingPeriod.h"
#include "history/Store.h"

#include <QDate>

#include <array>
#include <cstdint>
#include <vector>

namespace usage
{

enum class BarUnit { Day, Month };

/// What the bytes of a bar are told apart by.
enum UsagePart { ReceivedAtHome, SentAtHome, ReceivedRoaming, SentRoaming };
constexpr int usagePartCount = 4;

/// What was moved on a day or in a month of the local calendar.
struct UsageBar {
    QDate first;
    std::array<std::int64_t, usagePartCount> bytes = {}; ///< by UsagePart

    std::int64_t total() const;
    bool hasRoaming() const { return bytes[ReceivedRoaming] != 0 || bytes[SentRoaming] != 0; }

    bool operator==(const UsageBar &other) const
    {
        return first == other.first && bytes == other.bytes;
    }
};

/// The days whose bars stand side by side when one of them is to be among them: those of the
/// rule's period, or of its part in a year if it is longer than one; for months, the year.
/// Where the rule has no period on that day, the one next to it.
BillingPeriod spanNear(const history::PeriodRule &rule, BarUnit unit, const QDate &day);

/// One bar for each day or month of the span, a year's for months, by time, of those hours
/// that the plan covers. A sum that 64 bits do not hold stops at their end.
history::Result<std::vector<UsageBar>> usageBars(const history::Store &store,
                                                 const history::DataPlan &plan, BarUnit unit,
                                                 const BillingPeriod &span);

/// The sum of all bars, with the day of the first one.
UsageBar sumOf(const std::vector<UsageBar> &bars);

} // namespace usage
