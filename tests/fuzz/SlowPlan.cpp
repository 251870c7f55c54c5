// SPDX-License-Identifier: MIT
#include "SlowPlan.h"

#include <QTimeZone>

#include <time.h>

#include <limits>

using namespace history;
using usage::BillingPeriod;

namespace
{

__extension__ using Large = __int128;

std::int64_t cut(Large value)
{
    constexpr Large most = std::numeric_limits<std::int64_t>::max();
    constexpr Large least = std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value > most ? most : value < least ? least : value);
}

Large roundedDown(Large dividend, Large divisor)
{
    Large quotient = dividend / divisor;
    while (quotient * divisor > dividend)
        --quotient;
    return quotient;
}

std::vector<int> reached(const DataPlan &plan, Large used)
{
    std::vector<int> percentages;
    for (const int percent : plan.warnAtPercent) {
        if (plan.amount && used * 100 >= Large(*plan.amount) * percent)
            percentages.push_back(percent);
    }
    return percentages;
}

} // namespace

QDate SlowPlan::dayAt(std::int64_t utc)
{
    const time_t time = utc;
    tm local = {};
    localtime_r(&time, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::int64_t SlowPlan::beginOf(const QDate &day)
{
    constexpr std::int64_t epoch = 2440588;
    constexpr std::int64_t farthestZone = 26 * 3600;
    std::int64_t utc = (day.toJulianDay() - epoch) * 86400 - farthestZone;
    while (dayAt(utc) < day)
        utc += 900;
    while (dayAt(utc - 60) >= day)
        utc -= 60;
    return utc;
}

std::optional<BillingPeriod> SlowPlan::periodOf(const QDate &day) const
{
    if (!isCovered(day))
        return std::nullopt;
    QDate first = day;
    while (!begins(first))
        first = first.addDays(-1);
    QDate end = day.addDays(1);
    while (isCovered(end) && !begins(end))
        end = end.addDays(1);
    return BillingPeriod{first, end};
}

std::optional<BillingPeriod> SlowPlan::periodAt(std::int64_t utc) const
{
    // Clocks that are set back over midnight show the day before again.
    for (const int distance : {-1, 0, 1}) {
        const auto period = periodOf(dayAt(utc).addDays(distance));
        if (period && beginOf(period->first) <= utc && utc < beginOf(period->end))
            return period;
    }
    return std::nullopt;
}

const char *SlowPlan::complaint(const usage::PlanStatus &status, const BillingPeriod &period,
                                std::int64_t bytes, std::int64_t utc) const
{
    const auto &elsewhere = m_plan.usedElsewhere;
    const bool counts = elsewhere && elsewhere->day >= period.first.toJulianDay() &&
                        elsewhere->day < period.end.toJulianDay();
    const std::int64_t used = cut(Large(bytes) + (counts ? elsewhere->bytes : 0));
    if (status.used != used)
        return "used";
    const auto left =
        m_plan.amount ? std::optional(cut(Large(*m_plan.amount) - used)) : std::nullopt;
    if (status.left != left || status.isSpent() != (left && *left <= 0))
        return "left";
    int days = 0;
    for (QDate day = dayAt(utc); day < period.end; day = day.addDays(1))
        ++days;
    days = days == 0 ? 1 : days;
    if (status.daysLeft != days)
        return "days left";
    if (status.leftADay != (left ? std::optional(*left > 0 ? *left / days : 0) : std::nullopt))
        return "left a day";
    const std::int64_t begin = beginOf(period.first);
    const Large whole = Large(used) * (beginOf(period.end) - begin);
    const auto pace =
        utc - begin < 86400 ? std::nullopt : std::optional(cut(roundedDown(whole, utc - begin)));
    if (status.pace != pace)
        return "pace";
    return status.warnings == reached(m_plan, used) ? nullptr : "warnings";
}

bool SlowPlan::isCovered(const QDate &day) const
{
    if (const auto *const every = std::get_if<EveryDays>(&m_plan.period))
        return day.toJulianDay() >= every->from;
    if (const auto *const once = std::get_if<OnceBetween>(&m_plan.period))
        return day.toJulianDay() >= once->first && day.toJulianDay() <= once->last;
    return true;
}

bool SlowPlan::begins(const QDate &day) const
{
    if (const auto *const monthly = std::get_if<MonthlyFrom>(&m_plan.period))
        return day.day() == monthly->day || (day.day() < monthly->day && day.addDays(1).day() == 1);
    if (const auto *const every = std::get_if<EveryDays>(&m_plan.period))
        return (day.toJulianDay() - every->from) % every->days == 0;
    return day.toJulianDay() == std::get<OnceBetween>(m_plan.period).first;
}
