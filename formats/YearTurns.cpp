// SPDX-License-Identifier: MIT
#include "YearTurns.h"

#include <cstdlib>

namespace formats
{

namespace
{

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t secondsPerYear = 366 * usage::secondsPerDay;
/// A log is rather silent for eleven months than for longer, a clock rather set
/// back by less than a month than by more.
constexpr std::int64_t longestSetBack = 31 * usage::secondsPerDay;

std::int64_t localPlaceInYear(std::int64_t utc)
{
    return placeInYear(usage::localCalendarTime(utc));
}

bool isWithinAnHourOf(std::int64_t place, std::int64_t start)
{
    return place >= start && place - start <= secondsPerHour;
}

/// Walks along the runs; a run that a starting clock has made is left out of the
/// comparison of those around it.
class TurnCounter
{
public:
    TurnCounter(const std::vector<ClockRun> &runs, std::int64_t changedUtc)
        : m_runs(runs)
        , m_changed(localPlaceInYear(changedUtc))
    {
        m_result.turns.push_back(0);
    }

    YearTurns count()
    {
        for (std::size_t i = 1; i < m_runs.size(); ++i) {
            if (isOfStartingClock(i)) {
                m_result.turns.push_back(turnOfStartingClock(i));
                m_result.areUncertain = m_result.areUncertain || isLast(i);
            } else {
                m_result.turns.push_back(m_result.turns[m_trusted] + turnsSinceTrusted(i));
                m_trusted = i;
            }
        }
        m_result.lastTrusted = m_trusted;
        return m_result;
    }

private:
    std::int64_t trustedPlace() const { return placeInYear(m_runs[m_trusted].last); }
    std::int64_t stepTo(std::size_t run) const
    {
        return placeInYear(m_runs[run].first) - trustedPlace();
    }

    bool isOfStartingClock(std::size_t run) const
    {
        const std::int64_t start = placeInYear(m_runs[run].first);
        const std::int64_t end = placeInYear(m_runs[run].last);
        // What lasts longer, or to the end of the file's life, nobody has set right.
        if (std::abs(end - start) > usage::secondsPerDay ||
            (isLast(run) && std::abs(m_changed - end) <= usage::secondsPerDay))
            return false;
        const std::int64_t step = stepTo(run);
        if (isWithinAnHourOf(start, 0) || (step < 0 && isWithinAnHourOf(start, m_epoch)))
            return step < 0 && step + secondsPerYear > usage::secondsPerDay;
        return isWithinAnHourOf(start, m_epoch) && returnsBefore(run);
    }

    bool isLast(std::size_t run) const { return run + 1 == m_runs.size(); }

    /// Whether the run after this one continues where the trusted one has stopped.
    bool returnsBefore(std::size_t run) const
    {
        return !isLast(run) && stepTo(run + 1) >= -usage::secondsPerDay &&
               stepTo(run + 1) < stepTo(run);
    }

    /// Whether the run is of lines of the old year among those of the new one, which
    /// continue behind it; if it is earlier by seconds alone, nothing else is likely.
    bool isLateLine(std::size_t run) const
    {
        const std::int64_t lateness = secondsPerYear - stepTo(run);
        return lateness <= secondsPerMinute ||
               (lateness <= usage::secondsPerDay &&
                (isLast(run) || (stepTo(run + 1) > 0 && stepTo(run + 1) <= usage::secondsPerDay)));
    }

    int turnOfStartingClock(std::size_t run) const
    {
        return m_result.turns[m_trusted] - (stepTo(run) > 0 ? 1 : 0);
    }

    int turnsSinceTrusted(std::size_t run)
    {
        const std::int64_t step = stepTo(run);
        if (step > 0)
            return isLateLine(run) ? -1 : 0;
        if (step < -longestSetBack)
            return 1;
        m_result.areUncertain = m_result.areUncertain || step < -usage::secondsPerDay;
        return 0;
    }

    const std::vector<ClockRun> &m_runs;
    std::int64_t m_changed;
    /// Where a clock that starts in 1970 begins.
    std::int64_t m_epoch = localPlaceInYear(0);
    std::size_t m_trusted = 0;
    YearTurns m_result;
};

} // namespace

YearTurns yearTurnsOf(const std::vector<ClockRun> &runs, std::int64_t changedUtc)
{
    return runs.empty() ? YearTurns() : TurnCounter(runs, changedUtc).count();
}

} // namespace formats
