// SPDX-License-Identifier: MIT
#pragma once

#include "usage/CalendarTime.h"

#include <cstdint>
#include <vector>

namespace formats
{

/// Where in the year the time is, in seconds; every year has a 29 February here.
std::int64_t placeInYear(const usage::CalendarTime &time);

/// Lines of a log one after another between which its clock does not jump by more
/// than a day, nor into another year.
struct ClockRun {
    usage::CalendarTime first;
    usage::CalendarTime last;
    int year = 0; ///< 0: no line of it shows one
    bool hasLeapDay = false;
};

/// Follows the clock of a log from line to line.
class ClockRuns
{
public:
    /// The time stamp of the next line; returns the place of its run in runs().
    std::size_t add(const usage::CalendarTime &time);

    const std::vector<ClockRun> &runs() const { return m_runs; }
    /// Whether the clock mostly goes backwards, as where the newest line is the first.
    bool goesBackwards() const { return m_stepsBack > m_stepsForward; }
    /// Whether it does not, and is not of one moment either.
    bool goesForwards() const { return !goesBackwards() && m_stepsForward > 0; }
    /// Brings a log whose newest line is the first into the order of time.
    void reverse();

private:
    std::vector<ClockRun> m_runs;
    std::size_t m_stepsForward = 0;
    std::size_t m_stepsBack = 0;
};

} // namespace formats
