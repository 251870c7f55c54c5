// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

#include <cstdint>
#include <optional>
#include <variant>

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

/// From that day of each month, 1 to 31; a month without it takes its last one.
struct MonthlyFrom {
    int day = 1;
};
/// That many days, again and again, at least one; nothing before `from`.
struct EveryDays {
    int days = 28;
    QDate from;
};
/// From the first to the last day, both included, and never again.
struct OnceBetween {
    QDate first;
    QDate last;
};
using PeriodRule = std::variant<MonthlyFrom, EveryDays, OnceBetween>;

/// The period that holds that day, if there is one.
std::optional<BillingPeriod> periodOf(const PeriodRule &rule, const QDate &day);
/// The period that ends where this one begins, if there is one.
std::optional<BillingPeriod> periodBefore(const PeriodRule &rule, const BillingPeriod &period);

} // namespace usage
