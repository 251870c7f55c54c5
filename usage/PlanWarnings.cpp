// SPDX-License-Identifier: MIT
#include "PlanWarnings.h"

namespace usage
{

history::Result<std::vector<int>> takeWarnings(history::Store &store, const history::DataPlan &plan,
                                               const PlanStatus &status)
{
    const history::JulianDay first = status.period.first.toJulianDay();
    const auto given = store.warningsGiven(plan.key, first);
    if (!given)
        return given.error();
    const std::vector<int> due = dueWarnings(status, given.value());
    if (due.empty())
        return due;
    return store.noteWarnings(plan.key, first, due);
}

} // namespace usage
