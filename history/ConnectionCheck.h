// SPDX-License-Identifier: MIT
#pragma once

#include "Connection.h"

#include <vector>

namespace history
{

/// Throw StoreFailure if a value is outside its range.
void check(const Connection &connection);
void check(const OpenConnection &connection);
void check(const std::vector<Connection> &connections);

} // namespace history
