// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

#include <string>
#include <vector>

namespace connrecord
{

struct RecordRequest {
    std::vector<std::string> interfaceNames; ///< recorded besides mobile-broadband ones
    std::string profile;                     ///< in the place of the interfaces' names
};

/// Records connections until a signal ends the program, and says on standard error and to
/// the service manager what happens. What lasts then is left for the next recorder to
/// resume. Throws Failure for a request that cannot be met and a store that cannot be used.
void recordConnections(const CommonRequest &common, const RecordRequest &request);

} // namespace connrecord
