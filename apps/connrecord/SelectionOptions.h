// SPDX-License-Identifier: MIT
#pragma once

#include "Selection.h"

namespace CLI
{
class App;
}

namespace connrecord
{

/// Declares the options that say which days, and which connections, a command is for.
void addDays(CLI::App &command, DaysRequest &days);
void addSelection(CLI::App &command, SelectionRequest &selection);

} // namespace connrecord
