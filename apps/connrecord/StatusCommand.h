// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Failure.h"

#include <optional>
#include <string>

namespace connrecord
{

struct StatusRequest {
    std::optional<std::string> plan; ///< of this one alone
    std::optional<std::string> at;   ///< at that time; now without it
};

/// Tells how plans stand. What it returns is that of the plan that stands worst. Throws
/// Failure.
ExitCode showStatus(const CommonRequest &common, const StatusRequest &request);

} // namespace connrecord
