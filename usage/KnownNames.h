// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <set>
#include <string>

namespace usage
{

/// Whose connections a history has, those that last included. An empty one is there if it has
/// connections without.
struct KnownNames {
    std::set<std::string> profiles;
    std::set<std::string> sims;
};

/// Reads the whole history.
history::Result<KnownNames> knownNames(const history::Store &store);

} // namespace usage
