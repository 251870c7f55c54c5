// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Selection.h"

#include <string>
#include <vector>

namespace connrecord
{

struct RemoveRequest {
    std::vector<std::string> keys; ///< without any, the selection says what
    SelectionRequest selection;
    bool isAgreed = false;    ///< nobody is asked
    bool isRehearsal = false; ///< only shows what it would remove
};

/// Removes connections, all of these or none. Where the user is at a terminal, shows
/// them first and asks. Throws Failure.
void removeConnections(const CommonRequest &common, const RemoveRequest &request);

} // namespace connrecord
