// SPDX-License-Identifier: MIT
#include "BillingPeriod.h"

#include <QDateTime>

#include <algorithm>

namespace usage
{

namespace
{

/// Where clocks are set forward at midnight, the day begins later.
std::int64_t beginOf(const QDate &day)
{
    return day.startOfDay().toSecsSinceEpoch();
}

QDate startInMonth(const MonthlyFrom &rule, const QDate &month)
{
    return {month.year(), month.month(), std::min(rule.day, month.daysInMonth())};
}

QDate firstOfMonth(const QDate &day)
{
    return {day.year(), day.month(), 1};
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
        const qint64 gone = rule.from.daysTo(day);
        if (gone < 0)
            return std::nullopt;
        const QDate first = rule.from.addDays(gone - gone % rule.days);
        return BillingPeriod{first, first.addDays(rule.days)};
    }

    std::optional<BillingPeriod> operator()(const OnceBetween &rule) const
    {
        const BillingPeriod period{rule.first, rule.last.addDays(1)};
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

std::optional<BillingPeriod> periodBefore(const PeriodRule &rule, const BillingPeriod &period)
{
    return periodOf(rule, period.first.addDays(-1));
}

} // namespace usage
