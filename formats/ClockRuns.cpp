// SPDX-License-Identifier: MIT
#include "ClockRuns.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace formats
{

namespace
{

constexpr std::array<int, 12> daysBeforeMonth = {0,   31,  60,  91,  121, 152,
                                                 182, 213, 244, 274, 305, 335};

bool isOfOtherYear(const ClockRun &run, const usage::CalendarTime &time)
{
    return run.year != 0 && time.year != 0 && run.year != time.year;
}

void extend(ClockRun &run, const usage::CalendarTime &time)
{
    run.last = time;
    if (time.year != 0)
        run.year = time.year;
    run.hasLeapDay = run.hasLeapDay || (time.month == 2 && time.day == 29);
}

} // namespace

std::int64_t placeInYear(const usage::CalendarTime &time)
{
    const std::int64_t days =
        daysBeforeMonth.at(static_cast<std::size_t>(time.month - 1)) + time.day - 1;
    return ((days * 24 + time.hour) * 60 + time.minute) * 60 + time.second;
}

std::size_t ClockRuns::add(const usage::CalendarTime &time)
{
    const std::int64_t step =
        m_runs.empty() ? 0 : placeInYear(time) - placeInYear(m_runs.back().last);
    const bool isJump = m_runs.empty() || std::abs(step) > usage::secondsPerDay ||
                        isOfOtherYear(m_runs.back(), time);
    if (isJump) {
        m_runs.push_back({time, time, 0, false});
    } else {
        m_stepsForward += step > 0 ? 1 : 0;
        m_stepsBack += step < 0 ? 1 : 0;
    }
    extend(m_runs.back(), time);
    return m_runs.size() - 1;
}

void ClockRuns::reverse()
{
    std::reverse(m_runs.begin(), m_runs.end());
    for (ClockRun &run : m_runs)
        std::swap(run.first, run.last);
    std::swap(m_stepsForward, m_stepsBack);
}

} // namespace formats
