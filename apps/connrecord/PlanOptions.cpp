// SPDX-License-Identifier: MIT
#include "PlanOptions.h"

#include "OptionChoice.h"

#include <string>

namespace connrecord
{

namespace
{

void addCoverage(CLI::App &command, PlanRequest &request)
{
    auto *const profile =
        command.add_option("--profile", request.profile, "It is for this profile (APN) only")
            ->type_name("NAME");
    auto *const sim =
        command.add_option("--sim", request.sim, "It is for the SIM whose number ends so only")
            ->type_name("NUMBER");
    auto *const everything = command.add_flag("--everything", request.coversEverything,
                                              "It is for all connections; so it is without these");
    everything->disable_flag_override();
    profile->excludes(sim);
    profile->excludes(everything);
    sim->excludes(everything);
}

/// An option that takes one of the names of a table.
template <typename Names, typename Value>
void addChoice(CLI::App &command, const std::string &option, const Names &names, Value &value,
               const char *description)
{
    command
        .add_option_function<std::string>(
            option,
            [option, &names, &value](const std::string &name) {
                value = chosenFrom(names, option, name)->value;
            },
            description)
        ->type_name(choiceOf(names));
}

void addPeriod(CLI::App &command, PlanRequest &request)
{
    auto *const monthly =
        command
            .add_option("--monthly", request.monthly,
                        "A period begins with this day of each month, or its last one; 1 "
                        "without these")
            ->type_name("DAY");
    auto *const every = command
                            .add_option("--every", request.every,
                                        "A period has that many days; --from is the first")
                            ->type_name("DAYS");
    auto *const from = command
                           .add_option("--from", request.days.from,
                                       "First day, as 2024-05-31, of periods or of the only one")
                           ->type_name("DATE");
    auto *const to = command
                         .add_option("--to", request.days.to,
                                     "Last day, itself included, of a plan for once (prepaid)")
                         ->type_name("DATE");
    for (CLI::Option *const other : {every, from, to})
        monthly->excludes(other);
    every->excludes(to);
}

} // namespace

void addPlanName(CLI::App &command, PlanRequest &request)
{
    command.add_option("NAME", request.name, "The plan's name")->type_name("")->required();
}

void addPlanOptions(CLI::App &command, PlanRequest &request)
{
    addPlanName(command, request);
    command
        .add_option("--amount", request.amount,
                    "Bytes in a period, as 10GB, of 1024 each; none: not limited")
        ->type_name("SIZE|none");
    addCoverage(command, request);
    addChoice(command, "--network", history::networkNames, request.network,
              "What is moved there counts; both without it");
    addChoice(command, "--count", history::countNames, request.counts,
              "What counts; both directions without it");
    addPeriod(command, request);
    command
        .add_option("--already-used", request.alreadyUsed,
                    "Used in the present period, and not in the history; -1GB takes off")
        ->type_name("SIZE");
    command.add_option("--warn", request.warnings, "Percentages to warn at; 80,100 without it")
        ->type_name("PERCENT,...|none");
}

} // namespace connrecord
