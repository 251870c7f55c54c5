// SPDX-License-Identifier: MIT
#pragma once

#include "PlanCommands.h"

#include <CLI/CLI.hpp>

namespace connrecord
{

/// Declares the name of a plan, and the options with what is to be set of it; they are
/// read into `request`.
void addPlanName(CLI::App &command, PlanRequest &request);
void addPlanOptions(CLI::App &command, PlanRequest &request);

} // namespace connrecord
