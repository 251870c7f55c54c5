// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"

#include <QDate>

#include <cstdint>
#include <optional>

namespace usage
{

/// Local days from `first` up to `end`, which is outside: from the midnight that `first`
/// begins with to the one that `end` begins with.
struct BillingPeriod {
    QDate first;
    QDate end;

    bool contains(const QDate &day) const { return first <= day && day < end; }
    QDate last() const { return end.addDays(-1); }
    /// Seconds since 1970-01-01 00:00 UTC, in the time zone of this moment.
    std::int64_t beginUtc() const;
    std::int64_t endUtc() const;

    bool operator==(const BillingPeriod &other) const
    {
        return first == other.first && end == other.end;
    }
};

/// The period that holds that day, if there is one.
std::optional<BillingPeriod> periodOf(const history::PeriodRule &rule, const QDate &day);
/// The period that holds that moment, from its first midnight to the next one's, if there is
/// one.
std::optional<BillingPeriod> periodAt(const history::PeriodRule &rule, std::int64_t utc);
/// The same for many moments, most of which lie in the period of the one before.
class PeriodFinder
{
public:
    explicit PeriodFinder(history::PeriodRule rule)
        : m_rule(rule)
    {
    }

    std::optional<BillingPeriod> at(std::int64_t utc);

private:
    history::PeriodRule m_rule;
    std::optional<BillingPeriod> m_found;
    std::int64_t m_beginUtc = 0;
    std::int64_t m_endUtc = 0;
};
/// The last one that has ended by then, if one has.
std::optional<BillingPeriod> periodEndedBy(const history::PeriodRule &rule, std::int64_t utc);
/// The period that ends where this one begins, if there is one.
std::optional<BillingPeriod> periodBefore(const history::PeriodRule &rule,
                                          const BillingPeriod &period);

} // namespace usage
