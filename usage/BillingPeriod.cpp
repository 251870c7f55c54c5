// SPDX-License-Identifier: MIT
#include "BillingPeriod.h"

#include "LocalDays.h"

#include <QDateTime>

#include <algorithm>

namespace usage
{

namespace
{

using history::EveryDays;
using history::MonthlyFrom;
using history::OnceBetween;
using history::PeriodRule;

/// Where clocks are set forward at midnight, the day begins later; one that a place has
/// left out begins with the next. Of two midnights it is the first one, whichever Qt takes.
std::int64_t beginOf(const QDate &day)
{
    const QDateTime begin = day.startOfDay();
    if (!begin.isValid())
        return beginOf(day.addDays(1));
    const std::int64_t utc = begin.toSecsSinceEpoch();
    const std::int64_t hourBefore = utc - history::secondsPerHour;
    return localDay(hourBefore) == day ? hourBefore : utc;
}

QDate startInMonth(const MonthlyFrom &rule, const QDate &month)
{
    return {month.year(), month.month(),
            static_cast<int>(std::min<std::int64_t>(rule.day, month.daysInMonth()))};
}

QDate firstOfMonth(const QDate &day)
{
    return {day.year(), day.month(), 1};
}

BillingPeriod onlyPeriodOf(const OnceBetween &rule)
{
    return {QDate::fromJulianDay(rule.first), QDate::fromJulianDay(rule.last + 1)};
}

struct PeriodHolding {
    QDate day;

    std::optional<BillingPeriod> operator()(const MonthlyFrom &rule) const
    {
        const QDate month = firstOfMonth(day);
        const QDate start = startInMonth(rule, month);
        if (day < start)
            return BillingPeriod{startInMonth(rule, month.addMonths(-1)), start};
        return BillingPeriod{start, startInMonth(rule, month.addMonths(1))};
    }

    std::optional<BillingPeriod> operator()(const EveryDays &rule) const
    {
        const qint64 gone = day.toJulianDay() - rule.from;
        if (gone < 0)
            return std::nullopt;
        const QDate first = day.addDays(-(gone % rule.days));
        return BillingPeriod{first, first.addDays(rule.days)};
    }

    std::optional<BillingPeriod> operator()(const OnceBetween &rule) const
    {
        const BillingPeriod period = onlyPeriodOf(rule);
        return period.contains(day) ? std::optional(period) : std::nullopt;
    }
};

} // namespace

std::int64_t BillingPeriod::beginUtc() const
{
    return beginOf(first);
}

std::int64_t BillingPeriod::endUtc() const
{
    return beginOf(end);
}

std::optional<BillingPeriod> periodOf(const PeriodRule &rule, const QDate &day)
{
    return std::visit(PeriodHolding{day}, rule);
}

std::optional<BillingPeriod> periodAt(const PeriodRule &rule, std::int64_t utc)
{
    const QDate day = localDay(utc);
    // Where clocks are set back over midnight, a day's first minutes stand before the last
    // ones of the day before.
    for (const int distance : {0, 1, -1}) {
        const auto period = periodOf(rule, day.addDays(distance));
        if (period && period->beginUtc() <= utc && utc < period->endUtc())
            return period;
    }
    return std::nullopt;
}

std::optional<BillingPeriod> PeriodFinder::at(std::int64_t utc)
{
    if (m_found && m_beginUtc <= utc && utc < m_endUtc)
        return m_found;
    m_found = periodAt(m_rule, utc);
    if (m_found) {
        m_beginUtc = m_found->beginUtc();
        m_endUtc = m_found->endUtc();
    }
    return m_found;
}

std::optional<BillingPeriod> periodEndedBy(const PeriodRule &rule, std::int64_t utc)
{
    if (const auto period = periodAt(rule, utc))
        return periodBefore(rule, *period);
    const auto *const once = std::get_if<OnceBetween>(&rule);
    if (!once || utc < onlyPeriodOf(*once).endUtc())
        return std::nullopt;
    return onlyPeriodOf(*once);
}

std::optional<BillingPeriod> periodBefore(const PeriodRule &rule, const BillingPeriod &period)
{
    return periodOf(rule, period.first.addDays(-1));
}

} // namespace usage
