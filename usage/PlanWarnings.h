// SPDX-License-Identifier: MIT
#pragma once

#include "PlanStatus.h"
#include "history/Store.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace usage
{

/// A plan that has reached a percentage to warn at.
struct ReachedPlan {
    history::DataPlan plan;
    PlanStatus status;
};

/// The plans that have reached one in their periods that hold `utc`.
history::Result<std::vector<ReachedPlan>> reachedPlans(const history::Store &store,
                                                       std::int64_t utc);

/// The percentages to warn of now, rising: those that the plan has reached and that no program
/// has warned of in this period.
history::Result<std::vector<int>> pendingWarnings(const history::Store &store,
                                                  const ReachedPlan &reached);

/// The same for who warns of them now. They are noted in the history as given, so that a
/// restart, or another program, does not repeat them. Nothing is written if there are none.
history::Result<std::vector<int>> takeWarnings(history::Store &store, const ReachedPlan &reached);

/// Gives back what takeWarnings() returned, for who could not warn of them after all.
history::Result<std::size_t> returnWarnings(history::Store &store, const ReachedPlan &reached,
                                            const std::vector<int> &percentages);

/// Stores the plan in the place of `former` as Store::setPlan() does, without repeating, for the
/// sake of another amount, a warning that the plan has reached at `utc` with it too.
history::Result<history::PlanOutcome> replacePlan(history::Store &store,
                                                  const history::DataPlan &plan,
                                                  const std::optional<history::DataPlan> &former,
                                                  std::int64_t utc);

} // namespace usage
