// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"

#include <QDate>

#include <cstdint>
#include <vector>

/// What a user says of a plan, as the plan has it.
namespace usage
{

/// Notes that so many bytes of the period that holds this day have been used elsewhere; 0
/// means nothing. False, and nothing changes, if no period of the plan holds it.
bool setUsedElsewhere(history::DataPlan &plan, std::int64_t bytes, const QDate &day);

/// The percentages to warn at, in any order and however often.
void setWarnings(history::DataPlan &plan, std::vector<int> percentages);

} // namespace usage
