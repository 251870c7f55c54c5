// SPDX-License-Identifier: MIT
#pragma once

#include "ClockRuns.h"
#include "usage/CalendarTime.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace formats
{

/// Tells when the lines of a log were written, also where the log leaves the year
/// out: a clock that goes back by more than a month has come into another year,
/// unless it only starts anew, at the beginning of a year, until it is set.
class YearResolver
{
public:
    /// `lastYear` is that of the log's last line, if that one shows none; without it,
    /// the latest that puts the line not more than a day after `changedUtc`.
    YearResolver(const std::vector<ClockRun> &runs, std::optional<int> lastYear,
                 std::int64_t changedUtc);

    /// When the line of that run was written that shows this time.
    std::int64_t utc(const usage::CalendarTime &time, std::size_t run) const;

    /// The year of the last line; 0 without any.
    int lastYear() const { return m_lastYear; }
    /// Whether lastYear() may as well be another one.
    bool isGuess() const { return m_isGuess; }
    /// Whether there is a 29 February among the lines, where it cannot be.
    bool hasImpossibleDay() const;

private:
    void resolveFrom(std::size_t run, int year);
    void deduceLastYear(std::size_t lastRun, std::int64_t changedUtc);
    void keepWrittenYears();

    const std::vector<ClockRun> &m_runs;
    std::vector<int> m_years; ///< of each run; before resolveFrom(), counted from the first
    int m_lastYear = 0;
    bool m_isGuess = false;
};

} // namespace formats
