// SPDX-License-Identifier: MIT
#pragma once

#include "usage/StandingPlan.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

#include <cstdint>
#include <optional>

class QLocale;

namespace refdialer
{

/// What the window says of data plans. Days are written as in the locale given.
class PlanText
{
    Q_DECLARE_TR_FUNCTIONS(refdialer::PlanText)

public:
    /// How the plan stands, in a line: used, days left, and the share of a day.
    static QString figures(const usage::StandingPlan &standing, const QDate &today,
                           const QLocale &locale);
    /// What is wrong with it, in a few words: spent, warned, or at a pace that the amount does
    /// not bear; empty if nothing is.
    static QString alarm(const usage::StandingPlan &standing);
    /// The rest, in whole sentences: its period, and what is left of it.
    static QString details(const usage::StandingPlan &standing, const QLocale &locale);
    /// The rule that its periods follow.
    static QString period(const history::PeriodRule &rule, const QLocale &locale);

private:
    static QString ofPeriod(const usage::PlanStatus &status, std::int64_t amount);
    static QString ofUnlimited(const usage::PlanStatus &status);
    static QString outsidePeriods(const history::PeriodRule &rule, const QDate &today,
                                  const QLocale &locale);
    static QString leftText(std::int64_t left);
};

/// How much of its amount is used, from 0 up and rounded down; nothing for a plan without one,
/// or between its periods.
std::optional<int> percentUsed(const usage::StandingPlan &standing);

} // namespace refdialer
