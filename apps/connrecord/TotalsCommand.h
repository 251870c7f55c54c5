// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "TotalsText.h"

#include <optional>
#include <string>

namespace connrecord
{

struct TotalsRequest {
    TotalsGroups groups;
    std::optional<std::string> from; ///< first local day; from the beginning without it
    std::optional<std::string> to;   ///< last local day; to the end without it
};

/// Adds up the connections that start on these days. Throws Failure.
void showTotals(const CommonRequest &common, const TotalsRequest &request);

} // namespace connrecord
