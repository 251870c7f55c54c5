// SPDX-License-Identifier: MIT
#pragma once

#include "DataPlan.h"

namespace history
{

/// Throws StoreFailure, of the kind BadRecord, if a value is outside its range.
void check(const DataPlan &plan);

} // namespace history
