// SPDX-License-Identifier: MIT
#pragma once

#include "formats/JsonText.h"
#include "usage/PlanStatus.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace connrecord
{

/// A plan, and how it stands at a moment.
struct StandingPlan {
    history::DataPlan plan;
    std::optional<usage::PlanStatus> status; ///< none between its periods
    std::vector<usage::PeriodUse> past;
};

enum class PlanState { NoPeriod, Within, Warned, Spent };
PlanState stateOf(const StandingPlan &standing);

/// How plans stand as a table for people.
QByteArray toTable(const std::vector<StandingPlan> &plans);

/// The same for programs, with the periods before: exact integers, and null for what there
/// is not.
formats::Json toJson(const std::vector<StandingPlan> &plans);

} // namespace connrecord
