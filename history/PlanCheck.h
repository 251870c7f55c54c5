// SPDX-License-Identifier: MIT
#pragma once

#include "DataPlan.h"

#include <string>

namespace history
{

/// Throws StoreFailure, of the kind BadRecord, if a value is outside its range.
void check(const DataPlan &plan);

/// How sentences name a plan.
std::string planCalled(const std::string &name);

} // namespace history
