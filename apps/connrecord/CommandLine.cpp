// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "ArgumentList.h"
#include "Commands.h"
#include "Complaint.h"
#include "Failure.h"
#include "FileOptions.h"
#include "ImportCommand.h"
#include "OptionChoice.h"
#include "Output.h"
#include "PlanOptions.h"
#include "RecordCommand.h"
#include "RemoveCommand.h"
#include "SelectionOptions.h"
#include "StatusCommand.h"
#include "SystemZone.h"
#include "TotalsCommand.h"
#include "TotalsText.h"
#include "UpkeepCommands.h"
#include "formats/InputError.h"
#include "history/Store.h"
#include "usage/TextScanner.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <functional>
#include <iostream>
#include <new>
#include <sstream>
#include <string>
#include <vector>

namespace connrecord
{

namespace
{

constexpr const char *exitCodes = R"(Exit codes:
  0  success
  1  the request cannot be met: unknown key, refused value
  2  the command line is wrong
  3  the store cannot be used, or there is not enough memory
  4  the input file is wrong or cannot be read
  5  the output cannot be written
 10  status: a percentage to warn at of a plan is reached
 11  status: nothing is left of a plan)";

usage::Grouping groupingNamed(const std::string &names)
{
    if (const auto grouping = groupingOf(names))
        return *grouping;
    throw CLI::ValidationError("--by", "it is profile, sim, operator, roaming and one of hour, "
                                       "day, month, year and period, separated by commas, not " +
                                           names);
}

/// Declares the commands, and remembers the one that the user chooses.
class CommandLine
{
public:
    CommandLine();

    void parse(int argc, char **argv);
    /// Returns what the program is to end with.
    ExitCode run();
    /// The text that the user has asked for instead of a command.
    QByteArray textFor(const CLI::Success &helpOrVersion) const;

private:
    void checkCommandIsKnown() const;
    CLI::App *addCommand(const char *name, const char *description);
    CLI::App *addCommand(CLI::App &parent, const char *name, const char *description);
    static CLI::App *addCommandWithoutResult(CLI::App &parent, const char *name,
                                             const char *description);
    void addList();
    void addAdd();
    void addRemove();
    void addExport();
    void addImport();
    void addTotals();
    void addPlan();
    void addStatus();
    void addMetrics();
    void addBackup();
    void addCheck();
    void addRecord();

    CLI::App m_parser;
    CommonRequest m_common;
    AddRequest m_add;
    SelectionRequest m_selection;
    RemoveRequest m_removal;
    ExportRequest m_export;
    std::string m_copyPath;
    common::ImportRequest m_import;
    TotalsRequest m_totals;
    PlanRequest m_plan;
    StatusRequest m_status;
    MetricsRequest m_metrics;
    RecordRequest m_record;
    std::function<void()> m_action;
    bool m_followsTheZone = false; ///< it may run for months, and travel
    ExitCode m_exitCode = ExitCode::Success;
};

CommandLine::CommandLine()
    : m_parser("Shows and changes the history of mobile-broadband connections.", "connrecord")
{
    m_common.storePath = history::Store::defaultPath();
    m_parser.add_option("--store", m_common.storePath, "The history's file")
        ->type_name("FILE")
        ->check(checkFileName)
        ->default_str(m_common.storePath);
    m_parser.set_version_flag("--version", "connrecord " CONNRECORD_VERSION);
    m_parser.require_subcommand(1);
    m_parser.fallthrough();
    m_parser.footer(exitCodes);
    addList();
    addAdd();
    addRemove();
    addExport();
    addImport();
    addTotals();
    addPlan();
    addStatus();
    addMetrics();
    addBackup();
    addCheck();
    addRecord();
}

void CommandLine::parse(int argc, char **argv)
{
    try {
        m_parser.parse(argumentsFor(m_parser, argc, argv));
    } catch (const CLI::RequiredError &) {
        checkCommandIsKnown();
        throw;
    }
}

/// The parser itself would only tell that there is no command.
void CommandLine::checkCommandIsKnown() const
{
    const CLI::App *parent = &m_parser;
    std::string chosen;
    for (; !parent->get_subcommands().empty(); parent = parent->get_subcommands().front())
        chosen = parent->get_subcommands().front()->get_name() + ' ';
    if (parent->get_require_subcommand_min() == 0)
        return;
    const std::vector<std::string> unknown = m_parser.remaining(true);
    if (unknown.empty())
        throw CLI::RequiredError(chosen.empty() ? "A command" : "A command behind \"plan\"");
    const bool isOption = usage::startsWith(unknown.front(), "-");
    throw CLI::ParseError((isOption ? "There is no option \"" : "There is no command \"" + chosen) +
                              unknown.front() + '"',
                          CLI::ExitCodes::ExtrasError);
}

ExitCode CommandLine::run()
{
    checkIsNotOfHistory(standardOutputPath, m_common.storePath);
    if (!m_followsTheZone)
        keepSystemZone();
    m_action();
    return m_exitCode;
}

QByteArray CommandLine::textFor(const CLI::Success &helpOrVersion) const
{
    std::ostringstream text;
    m_parser.exit(helpOrVersion, text);
    return QByteArray::fromStdString(text.str());
}

CLI::App *CommandLine::addCommand(const char *name, const char *description)
{
    return addCommand(m_parser, name, description);
}

CLI::App *CommandLine::addCommand(CLI::App &parent, const char *name, const char *description)
{
    CLI::App *const command = addCommandWithoutResult(parent, name, description);
    command->add_flag("--json", m_common.json, "Write JSON, for programs")->disable_flag_override();
    return command;
}

CLI::App *CommandLine::addCommandWithoutResult(CLI::App &parent, const char *name,
                                               const char *description)
{
    CLI::App *const command = parent.add_subcommand(name, description);
    command->footer(exitCodes);
    return command;
}

void CommandLine::addList()
{
    CLI::App *const command = addCommand("list", "List connections by their start");
    addSelection(*command, m_selection);
    command->callback([this] { m_action = [this] { listConnections(m_common, m_selection); }; });
}

void CommandLine::addAdd()
{
    CLI::App *const command = addCommand("add", "Add one connection and write its key");
    const auto option = [command](const char *name, auto &value, const char *type,
                                  const char *description) {
        return command->add_option(name, value, description)->type_name(type);
    };
    option("--profile", m_add.profile, "NAME", "Profile (APN)")->required();
    option("--start", m_add.start, "TIME",
           "Start, as 2024-05-31T18:30:00Z; local time without a zone")
        ->required();
    option("--end", m_add.end, "TIME", "End, in the same way")->required();
    option("--up", m_add.uploadedBytes, "BYTES", "Bytes sent")->required();
    option("--down", m_add.downloadedBytes, "BYTES", "Bytes received")->required();
    option("--connected", m_add.connectedSeconds, "SECONDS",
           "Connected time; the end minus the start without it");
    option("--interface", m_add.interfaceName, "NAME", "Network interface");
    command->callback([this] { m_action = [this] { addConnection(m_common, m_add); }; });
}

void CommandLine::addRemove()
{
    CLI::App *const command = addCommand("remove", "Remove connections, all of these or none");
    addSelection(*command, m_selection);
    command->add_flag("--yes", m_removal.isAgreed, "Do not ask")->disable_flag_override();
    command->add_flag("--dry-run", m_removal.isRehearsal, "Only show what would be removed")
        ->disable_flag_override();
    command->add_option("KEY", m_removal.keys, "Key of a connection, as list shows it")
        ->type_name("");
    command->callback([this] {
        m_removal.selection = m_selection;
        m_action = [this] { removeConnections(m_common, m_removal); };
    });
}

void CommandLine::addExport()
{
    CLI::App *const command = addCommand("export", "Write connections to a file");
    addSelection(*command, m_selection);
    addExportOptions(*command, m_export);
    command->callback([this] {
        m_export.selection = m_selection;
        if (m_common.json)
            m_export.format = formats::formatNamed(formats::exportFormats, "json");
        m_action = [this] { exportConnections(m_common, m_export); };
    });
}

void CommandLine::addImport()
{
    CLI::App *const command =
        addCommand("import", "Add the connections of a file that are not there yet");
    command
        ->add_option_function<std::string>(
            "--format",
            [this](const std::string &name) {
                m_import.format = chosenFrom(formats::importFormats, "--format", name);
            },
            helpOf(formats::importFormats))
        ->type_name(choiceOf(formats::importFormats))
        ->required();
    command
        ->add_option("--profile", m_import.options.profile,
                     "Profile for the connections of a log that shows no APN")
        ->type_name("NAME");
    command
        ->add_option("--year", m_import.options.year,
                     "Year of the last line of a log without years")
        ->type_name("YYYY")
        ->check(CLI::Range(1970, 2105).description(""));
    command
        ->add_option("FILE", m_import.paths, "The file, - is standard input; logs may be several")
        ->type_name("")
        ->check(checkFileName)
        ->required();
    command->callback([this] { m_action = [this] { importConnections(m_common, m_import); }; });
}

void CommandLine::addTotals()
{
    CLI::App *const command = addCommand("totals", "Add up bytes, each when it was moved");
    command
        ->add_option_function<std::string>(
            "--by", [this](const std::string &names) { m_totals.grouping = groupingNamed(names); },
            "One sum for each of these and their combinations: profile, sim, operator, roaming, "
            "and hour, day, month, year or a plan's period; one in all without it")
        ->type_name("WHAT,...");
    command
        ->add_flag("--by-start", m_totals.countsAtStart,
                   "Count finished connections, each wholly at its start, as the window does")
        ->disable_flag_override();
    command->add_flag("--finished", m_totals.isOfFinished, "Leave out connections that still last")
        ->disable_flag_override();
    command->add_option("--plan", m_totals.plan, "Only what this plan covers")->type_name("NAME");
    addDays(*command, m_totals.days);
    command->callback([this] { m_action = [this] { showTotals(m_common, m_totals); }; });
}

void CommandLine::addPlan()
{
    CLI::App *const command = addCommandWithoutResult(
        m_parser, "plan", "Show and change data plans; status tells what is left of them");
    command->require_subcommand(1);
    addCommand(*command, "list", "List the plans by their names")->callback([this] {
        m_action = [this] { listPlans(m_common); };
    });
    CLI::App *const set =
        addCommand(*command, "set", "Make a plan, or change what is given of the one there is");
    addPlanOptions(*set, m_plan);
    set->callback([this] { m_action = [this] { setPlan(m_common, m_plan); }; });
    CLI::App *const remove = addCommand(*command, "remove", "Remove a plan, and no connection");
    addPlanName(*remove, m_plan);
    remove->callback([this] { m_action = [this] { removePlan(m_common, m_plan.name); }; });
}

void CommandLine::addStatus()
{
    CLI::App *const command = addCommand("status", "Tell what is left of data plans");
    command->add_option("--plan", m_status.plan, "Of this plan only")->type_name("NAME");
    command
        ->add_option("--at", m_status.at,
                     "As it was at this time, as 2024-05-31T18:30:00Z; local time without a zone")
        ->type_name("TIME");
    command->callback(
        [this] { m_action = [this] { m_exitCode = showStatus(m_common, m_status); }; });
}

void CommandLine::addMetrics()
{
    CLI::App *const command = addCommandWithoutResult(
        m_parser, "metrics",
        "Write sums and what is left of data plans for Prometheus. After a removal the sums are "
        "smaller, which it takes for a start at 0");
    addMetricsOptions(*command, m_metrics);
    command->callback([this] { m_action = [this] { writeMetrics(m_common, m_metrics); }; });
}

void CommandLine::addBackup()
{
    CLI::App *const command =
        addCommand("backup", "Write a whole copy into a new file, also while recording");
    command->add_option("FILE", m_copyPath, "The new file")
        ->type_name("")
        ->check(checkFileName)
        ->required();
    command->callback([this] { m_action = [this] { backUp(m_common, m_copyPath); }; });
}

void CommandLine::addCheck()
{
    CLI::App *const command = addCommand("check", "Tell whether the history's file is sound");
    command->callback([this] { m_action = [this] { checkHistory(m_common); }; });
}

void CommandLine::addRecord()
{
    CLI::App *const command = addCommandWithoutResult(
        m_parser, "record", "Record connections while they last, until a signal ends it");
    command
        ->add_option("--interface", m_record.interfaceNames,
                     "A network interface to record besides mobile-broadband ones; several times "
                     "for several")
        ->type_name("NAME")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    command
        ->add_option("--profile", m_record.profile,
                     "Profile (APN) of what is recorded; the interface's name without it")
        ->type_name("NAME")
        ->check(checkName);
    command->callback([this] {
        m_followsTheZone = true;
        m_action = [this] { recordConnections(m_common, m_record); };
    });
}

int complainOfUsage(const CLI::ParseError &error)
{
    const int code = complain(ExitCode::Usage, error.what());
    std::cerr << "connrecord --help tells what is possible.\n";
    return code;
}

ExitCode parseAndRun(int argc, char **argv)
{
    CommandLine commandLine;
    try {
        commandLine.parse(argc, argv);
    } catch (const CLI::Success &helpOrVersion) {
        Output().write(commandLine.textFor(helpOrVersion));
        return ExitCode::Success;
    }
    return commandLine.run();
}

} // namespace

int runCommandLine(int argc, char **argv)
{
    // A destructor that finds no memory cannot pass it on to where the others are caught.
    std::set_terminate(endWithSentence);
    try {
        return static_cast<int>(parseAndRun(argc, argv));
    } catch (const CLI::ParseError &error) {
        return complainOfUsage(error);
    } catch (const Failure &failure) {
        return complain(failure.exitCode(), failure.what());
    } catch (const formats::InputError &error) {
        return complain(ExitCode::Input, error.what());
    } catch (const std::bad_alloc &) {
        return complainOfMemory();
    }
}

} // namespace connrecord
