// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Json.h"
#include "usage/StandingPlan.h"

#include <QByteArray>

#include <vector>

namespace connrecord
{

/// With the periods before the present one.
struct PlanReport : usage::StandingPlan {
    std::vector<usage::PeriodUse> past;
};

/// How plans stand as a table for people.
QByteArray toTable(const std::vector<PlanReport> &plans);

/// The same for programs, with the periods before: exact integers, and null for what there
/// is not.
formats::Json toJson(const std::vector<PlanReport> &plans);

} // namespace connrecord
