// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Selection.h"
#include "TotalsText.h"

namespace connrecord
{

struct TotalsRequest {
    TotalsGroups groups;
    DaysRequest days;
};

/// Adds up the connections that start on these days. Throws Failure.
void showTotals(const CommonRequest &common, const TotalsRequest &request);

} // namespace connrecord
