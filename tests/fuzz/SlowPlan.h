// SPDX-License-Identifier: MIT
#pragma once

#include "usage/PlanStatus.h"

#include <QDate>

#include <cstdint>
#include <optional>

/// A plan's periods and figures, worked out slowly and plainly: day by day, and each day
/// by looking at the C library's clock every quarter of an hour, then every minute.
class SlowPlan
{
public:
    explicit SlowPlan(const history::DataPlan &plan)
        : m_plan(plan)
    {
    }

    static QDate dayAt(std::int64_t utc);
    /// The first moment that the clocks call that day, or a later one.
    static std::int64_t beginOf(const QDate &day);

    std::optional<usage::BillingPeriod> periodOf(const QDate &day) const;
    std::optional<usage::BillingPeriod> periodAt(std::int64_t utc) const;

    /// What is wrong with the status of the plan at that moment of the period; null if nothing.
    const char *complaint(const usage::PlanStatus &status, const usage::BillingPeriod &period,
                          std::int64_t bytes, std::int64_t utc) const;

private:
    bool isCovered(const QDate &day) const;
    bool begins(const QDate &day) const;

    const history::DataPlan &m_plan;
};
