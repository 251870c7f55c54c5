// SPDX-License-Identifier: MIT
#include "SelectionOptions.h"

#include <CLI/CLI.hpp>

namespace connrecord
{

void addDays(CLI::App &command, DaysRequest &days)
{
    command.add_option("--from", days.from, "First day, as 2024-05-31, in local time")
        ->type_name("DATE");
    command.add_option("--to", days.to, "Last day, itself included")->type_name("DATE");
}

void addSelection(CLI::App &command, SelectionRequest &selection)
{
    addDays(command, selection.days);
    command.add_option("--profile", selection.profile, "Of this profile (APN) only")
        ->type_name("NAME");
    command.add_option("--sim", selection.sim, "Of the SIM whose number ends so only")
        ->type_name("NUMBER");
    command.add_option("--limit", selection.limit, "That many at most, those that started last")
        ->type_name("NUMBER");
}

} // namespace connrecord
