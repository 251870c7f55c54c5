// SPDX-License-Identifier: MIT
#include "YearResolver.h"

#include "YearTurns.h"

#include <algorithm>

namespace formats
{

namespace
{

constexpr std::int64_t averageSecondsPerYear = 31556952;
/// The longest time from one leap year to the next.
constexpr int leapYearDistance = 8;
constexpr int firstLeapYear = 4;
/// No file time is further away, whatever a file system says.
constexpr std::int64_t latestChange = 4294967295;

/// The year of that moment, or one beside it when it lies close to its border.
int approximateYear(std::int64_t utc)
{
    return 1970 + static_cast<int>(utc / averageSecondsPerYear);
}

usage::UtcSpan spanIn(usage::CalendarTime time, int year)
{
    time.year = std::max(year, firstLeapYear);
    while (!usage::isValid(time))
        --time.year; // 29 February, which not every year has
    return usage::utcSpan(time);
}

} // namespace

YearResolver::YearResolver(const std::vector<ClockRun> &runs, std::optional<int> lastYear,
                           std::int64_t changedUtc)
    : m_runs(runs)
{
    if (runs.empty())
        return;
    const std::int64_t changed = std::clamp<std::int64_t>(changedUtc, 0, latestChange);
    const YearTurns turns = yearTurnsOf(runs, changed);
    m_years = turns.turns;
    const auto known =
        std::find_if(runs.rbegin(), runs.rend(), [](const ClockRun &run) { return run.year != 0; });
    if (known != runs.rend()) {
        resolveFrom(static_cast<std::size_t>(runs.rend() - known) - 1, known->year);
    } else if (lastYear) {
        resolveFrom(turns.lastTrusted, *lastYear);
    } else {
        deduceLastYear(turns.lastTrusted, changed);
        m_isGuess = m_isGuess || turns.areUncertain;
    }
    keepWrittenYears();
    m_lastYear = m_years[turns.lastTrusted];
}

std::int64_t YearResolver::utc(const usage::CalendarTime &time, std::size_t run) const
{
    return time.year != 0 ? usage::utcSpan(time).earliest : spanIn(time, m_years[run]).earliest;
}

bool YearResolver::hasImpossibleDay() const
{
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        if (m_runs[i].hasLeapDay && m_runs[i].year == 0 &&
            !usage::isValid({m_years[i], 2, 29, 0, 0, 0, {}}))
            return true;
    }
    return false;
}

void YearResolver::resolveFrom(std::size_t run, int year)
{
    const int difference = year - m_years[run];
    for (int &each : m_years)
        each += difference;
}

void YearResolver::deduceLastYear(std::size_t lastRun, std::int64_t changedUtc)
{
    const usage::CalendarTime &last = m_runs[lastRun].last;
    int year = approximateYear(changedUtc) + 1;
    while (spanIn(last, year).earliest > changedUtc + usage::secondsPerDay)
        --year;
    resolveFrom(lastRun, year);
    for (int i = 0; i < leapYearDistance && hasImpossibleDay(); ++i)
        resolveFrom(lastRun, year - i - 1);
    if (hasImpossibleDay())
        resolveFrom(lastRun, year);
    m_isGuess = changedUtc - utc(last, lastRun) > usage::secondsPerDay;
}

void YearResolver::keepWrittenYears()
{
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        if (m_runs[i].year != 0)
            m_years[i] = m_runs[i].year;
    }
}

} // namespace formats
