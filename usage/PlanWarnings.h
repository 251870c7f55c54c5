// SPDX-License-Identifier: MIT
#pragma once

#include "PlanStatus.h"
#include "history/Store.h"

#include <vector>

namespace usage
{

/// The percentages that the caller is to warn of now, rising: those that the plan has reached
/// and that no program has warned of in this period. They are noted in the history as given,
/// so that a restart, or another program, does not repeat them. Nothing is written if there
/// are none.
history::Result<std::vector<int>> takeWarnings(history::Store &store, const history::DataPlan &plan,
                                               const PlanStatus &status);

} // namespace usage
