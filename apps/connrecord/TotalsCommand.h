// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Selection.h"
#include "usage/Totals.h"

#include <optional>
#include <string>

namespace connrecord
{

struct TotalsRequest {
    usage::Grouping grouping;
    DaysRequest days;
    std::optional<std::string> plan; ///< only what it covers; its periods are the billing ones
    bool countsAtStart = false;      ///< wholly, and finished connections alone
    bool isOfFinished = false;       ///< leaves out connections that last
};

/// Adds up what was moved on these days. Throws Failure.
void showTotals(const CommonRequest &common, const TotalsRequest &request);

} // namespace connrecord
