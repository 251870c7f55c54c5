// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <vector>

namespace common
{

/// Gives the connections their hours of these, as a store tells them; one that the store
/// knows no hours of has none.
void addHours(const std::vector<history::ConnectionHour> &hours,
              std::vector<history::Connection> &connections);

} // namespace common
