// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

namespace history
{

/// A day of the calendar by its Julian day number, whatever the time zone.
using JulianDay = std::int64_t;

/// 1970-01-01 and 9999-12-31, the days that plans keep to.
constexpr JulianDay firstPlanDay = 2440588;
constexpr JulianDay lastPlanDay = 5373484;
constexpr std::int64_t longestCycle = 3660; ///< days
constexpr std::size_t longestPlanName = 255;
constexpr int highestPercentage = 1000;

/// From that day of each month, 1 to 31; a month without it takes its last one.
struct MonthlyFrom {
    std::int64_t day = 1;
    bool operator==(const MonthlyFrom &other) const { return day == other.day; }
};
/// That many days, 1 to longestCycle, again and again; nothing before `from`.
struct EveryDays {
    std::int64_t days = 28;
    JulianDay from = firstPlanDay;
    bool operator==(const EveryDays &other) const
    {
        return days == other.days && from == other.from;
    }
};
/// From the first to the last day, both included, and never again.
struct OnceBetween {
    JulianDay first = firstPlanDay;
    JulianDay last = firstPlanDay;
    bool operator==(const OnceBetween &other) const
    {
        return first == other.first && last == other.last;
    }
};
using PeriodRule = std::variant<MonthlyFrom, EveryDays, OnceBetween>;

/// Bytes that the history does not know of, used in the period that holds that day.
/// There may be less than none, where the history counts more than the provider.
struct UsedElsewhere {
    std::int64_t bytes = 0;
    JulianDay day = firstPlanDay;
    bool operator==(const UsedElsewhere &other) const
    {
        return bytes == other.bytes && day == other.day;
    }
};

/// What somebody has agreed on with a provider. Texts are UTF-8.
struct DataPlan {
    enum class Covers { Everything, Profile, Sim };
    enum class Network { Home, Roaming, Both };
    enum class Counts { Both, Received, Sent };

    std::int64_t key = 0; ///< given by the store, never used twice; 0 before that
    std::string name;     ///< no other plan's; 1 to longestPlanName bytes
    Covers covers = Covers::Everything;
    /// The profile, or the SIM's number or the end of it; empty for everything.
    std::string covered;
    Network network = Network::Both;
    Counts counts = Counts::Both;
    std::optional<std::int64_t> amount; ///< bytes in a period, not negative; none: not limited
    PeriodRule period = MonthlyFrom{};
    std::optional<UsedElsewhere> usedElsewhere;
    std::vector<int> warnAtPercent = {80, 100}; ///< rising, from 1 to highestPercentage

    bool operator==(const DataPlan &other) const
    {
        const auto values = [](const DataPlan &plan) {
            return std::tie(plan.key, plan.name, plan.covers, plan.covered, plan.network,
                            plan.counts, plan.amount, plan.period, plan.usedElsewhere,
                            plan.warnAtPercent);
        };
        return values(*this) == values(other);
    }
};

/// The key of the plan that has been stored, or the plan that another program has put in its
/// place meanwhile.
using PlanOutcome = std::variant<std::int64_t, DataPlan>;

/// A value by the name that it has in the store, in JSON and on the command line.
template <typename Value>
struct NamedValue {
    const char *name;
    Value value;
};

constexpr std::array<NamedValue<DataPlan::Covers>, 3> coverNames = {{
    {"everything", DataPlan::Covers::Everything},
    {"profile", DataPlan::Covers::Profile},
    {"sim", DataPlan::Covers::Sim},
}};
constexpr std::array<NamedValue<DataPlan::Network>, 3> networkNames = {{
    {"home", DataPlan::Network::Home},
    {"roaming", DataPlan::Network::Roaming},
    {"both", DataPlan::Network::Both},
}};
constexpr std::array<NamedValue<DataPlan::Counts>, 3> countNames = {{
    {"both", DataPlan::Counts::Both},
    {"received", DataPlan::Counts::Received},
    {"sent", DataPlan::Counts::Sent},
}};

template <typename Names, typename Value>
constexpr const char *nameOf(const Names &names, Value value)
{
    for (const auto &each : names) {
        if (each.value == value)
            return each.name;
    }
    return "";
}

template <typename Value, std::size_t size>
constexpr std::optional<Value> valueNamed(const std::array<NamedValue<Value>, size> &names,
                                          std::string_view name)
{
    for (const auto &each : names) {
        if (each.name == name)
            return each.value;
    }
    return std::nullopt;
}

} // namespace history
