// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <vector>

namespace fuzz
{

/// Whether these connections, which an importer has accepted, come back from the
/// store and from a CSV file as what they are.
void requireLossless(const std::vector<history::Connection> &connections);

} // namespace fuzz
