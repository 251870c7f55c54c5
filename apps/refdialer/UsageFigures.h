// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"
#include "usage/UsageBars.h"

#include <QDate>

#include <optional>
#include <string>
#include <vector>

namespace refdialer
{

/// Whose bytes are shown.
struct UsageSubject {
    enum class Kind { Everything, Plan, Profile, Sim };

    Kind kind = Kind::Everything;
    std::string name; ///< the plan's, the profile or the SIM's number
    std::int64_t planKey = 0;

    /// A plan stays the same when it gets another name.
    bool operator==(const UsageSubject &other) const
    {
        return kind == other.kind && planKey == other.planKey &&
               (kind == Kind::Plan || name == other.name);
    }
};

struct UsageRequest {
    /// None: the first plan, or everything where there is no plan.
    std::optional<UsageSubject> subject;
    usage::BarUnit unit = usage::BarUnit::Day;
    QDate day; ///< to be among the days shown; null for today
};

/// What a page of usage shows: the days of a plan's period, or of a calendar month, or the
/// months of a year.
struct UsageFigures {
    UsageSubject subject; ///< everything, if the one asked for is no more
    usage::BarUnit unit = usage::BarUnit::Day;
    usage::BillingPeriod span;
    std::vector<usage::UsageBar> bars;
    QDate previous; ///< a day of the span before, null where the history had not begun
    QDate next;     ///< of the span behind, null if that is yet to come
    std::vector<UsageSubject> subjects; ///< to choose from
    bool isHistoryEmpty = true;
};

history::Result<UsageFigures> usageFigures(const history::Store &store, const UsageRequest &request,
                                           const QDate &today);

} // namespace refdialer
