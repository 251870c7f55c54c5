// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "apps/common/Import.h"

namespace connrecord
{

/// Stores the connections of a file that the store does not have yet, all or
/// none, and says on standard output how many that were. Throws Failure.
void importConnections(const CommonRequest &common, const common::ImportRequest &request);

} // namespace connrecord
