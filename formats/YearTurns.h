// SPDX-License-Identifier: MIT
#pragma once

#include "ClockRuns.h"

#include <cstdint>
#include <vector>

namespace formats
{

/// How the years of a log follow from the order of its lines.
struct YearTurns {
    /// The year of each run, counted from the first one's.
    std::vector<int> turns;
    /// The last run that is not of a clock that had just started anew.
    std::size_t lastTrusted = 0;
    /// Whether a clock was set back that may as well have run on for nearly a year.
    bool areUncertain = false;
};

/// A last line that the log's file was changed with is never taken for one of a
/// clock that starts anew.
YearTurns yearTurnsOf(const std::vector<ClockRun> &runs, std::int64_t changedUtc);

} // namespace formats
