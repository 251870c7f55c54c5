// SPDX-License-Identifier: MIT
#include "PlanCheck.h"

#include "Connection.h"
#include "StoreFailure.h"
#include "ValueCheck.h"

namespace history
{

namespace
{

void checkDay(const std::string &whose, const char *what, JulianDay day)
{
    checkNumber(whose, what, day, firstPlanDay, lastPlanDay);
}

struct RuleCheck {
    const std::string &whose;

    void operator()(const MonthlyFrom &rule) const
    {
        checkNumber(whose, "day of the month", rule.day, 1, 31);
    }
    void operator()(const EveryDays &rule) const
    {
        checkNumber(whose, "number of days", rule.days, 1, longestCycle);
        checkDay(whose, "first day (a Julian day)", rule.from);
    }
    void operator()(const OnceBetween &rule) const
    {
        checkDay(whose, "first day (a Julian day)", rule.first);
        checkNumber(whose, "last day (a Julian day)", rule.last, rule.first, lastPlanDay);
    }
};

void checkPercentages(const std::string &whose, const std::vector<int> &percentages)
{
    int lowest = 1;
    for (const int each : percentages) {
        checkNumber(whose, "percentage to warn at, of which each is higher than the one before,",
                    each, lowest, highestPercentage);
        lowest = each + 1;
    }
}

} // namespace

void check(const DataPlan &plan)
{
    checkText("the plan", "name", plan.name, 1, longestPlanName);
    const std::string whose = planCalled(plan.name);
    checkText(whose, plan.covers == DataPlan::Covers::Sim ? "SIM" : "profile", plan.covered, 0,
              plan.covers == DataPlan::Covers::Sim ? longestShortText : longestProfile);
    if (plan.amount)
        checkNumber(whose, "amount", *plan.amount, 0, largestByteCount);
    std::visit(RuleCheck{whose}, plan.period);
    if (plan.usedElsewhere)
        checkDay(whose, "day (a Julian day) of what was used elsewhere", plan.usedElsewhere->day);
    checkPercentages(whose, plan.warnAtPercent);
}

std::string planCalled(const std::string &name)
{
    return "the plan \"" + beginningOf(name) + '"';
}

} // namespace history
