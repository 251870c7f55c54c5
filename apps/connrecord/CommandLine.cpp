// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "ArgumentList.h"
#include "Commands.h"
#include "Complaint.h"
#include "Failure.h"
#include "HistoryFiles.h"
#include "ImportCommand.h"
#include "Output.h"
#include "RecordCommand.h"
#include "RemoveCommand.h"
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
  5  the output cannot be written)";

/// The names of the rows of a table, and what they are, for the option that takes one.
template <typename Table>
std::string choiceOf(const Table &table)
{
    std::string names;
    for (const auto &row : table)
        names += (names.empty() ? "" : "|") + std::string(row.name);
    return names;
}

template <typename Table>
std::string helpOf(const Table &table)
{
    std::string text;
    for (const auto &row : table)
        text += (text.empty() ? "" : "; ") + std::string(row.name) + ": " + row.help;
    return text;
}

/// The row that the option names.
template <typename Table>
auto chosenFrom(const Table &table, const std::string &option, const std::string &name)
{
    const auto *const row = formats::formatNamed(table, name);
    if (!row)
        throw CLI::ValidationError(option, "it is one of " + choiceOf(table) + ", not " + name);
    return row;
}

/// The file of no name is the folder that the program runs in, which nobody means.
std::string checkFileName(const std::string &name)
{
    return name.empty() ? "the name of the file is empty" : std::string();
}

usage::Grouping groupingNamed(const std::string &names)
{
    if (const auto grouping = groupingOf(names))
        return *grouping;
    throw CLI::ValidationError("--by", "it is profile, sim, operator, roaming and one of hour, "
                                       "day, month and year, separated by commas, not " +
                                           names);
}

std::string checkName(const std::string &name)
{
    return name.empty() ? "the name is empty" : std::string();
}

/// Declares the commands, and remembers the one that the user chooses.
class CommandLine
{
public:
    CommandLine();

    void parse(int argc, char **argv);
    void run() const;
    /// The text that the user has asked for instead of a command.
    QByteArray textFor(const CLI::Success &helpOrVersion) const;

private:
    void checkCommandIsKnown() const;
    CLI::App *addCommand(const char *name, const char *description);
    CLI::App *addCommandWithoutResult(const char *name, const char *description);
    static void addDays(CLI::App *command, DaysRequest &days);
    void addSelection(CLI::App *command);
    void addList();
    void addAdd();
    void addRemove();
    void addExport();
    void addImport();
    void addTotals();
    void addBackup();
    void addCheck();
    void addRecord();

    CLI::App m_parser;
    CommonRequest m_common;
    AddRequest m_add;
    SelectionRequest m_selection;
    RemoveRequest m_removal;
    ExportRequest m_export{{}, &formats::exportFormats.front(), standardOutputPath};
    std::string m_copyPath;
    ImportRequest m_import;
    TotalsRequest m_totals;
    RecordRequest m_record;
    std::function<void()> m_action;
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
    const std::vector<std::string> unknown = m_parser.remaining();
    if (!m_parser.get_subcommands().empty())
        return;
    if (unknown.empty())
        throw CLI::RequiredError("A command");
    const std::string what = usage::startsWith(unknown.front(), "-") ? "option" : "command";
    throw CLI::ParseError("There is no " + what + " \"" + unknown.front() + '"',
                          CLI::ExitCodes::ExtrasError);
}

void CommandLine::run() const
{
    checkIsNotOfHistory(standardOutputPath, m_common.storePath);
    m_action();
}

QByteArray CommandLine::textFor(const CLI::Success &helpOrVersion) const
{
    std::ostringstream text;
    m_parser.exit(helpOrVersion, text);
    return QByteArray::fromStdString(text.str());
}

CLI::App *CommandLine::addCommand(const char *name, const char *description)
{
    CLI::App *const command = addCommandWithoutResult(name, description);
    command->add_flag("--json", m_common.json, "Write JSON, for programs")->disable_flag_override();
    return command;
}

CLI::App *CommandLine::addCommandWithoutResult(const char *name, const char *description)
{
    CLI::App *const command = m_parser.add_subcommand(name, description);
    command->footer(exitCodes);
    return command;
}

void CommandLine::addDays(CLI::App *command, DaysRequest &days)
{
    command->add_option("--from", days.from, "First day, as 2024-05-31, in local time")
        ->type_name("DATE");
    command->add_option("--to", days.to, "Last day, itself included")->type_name("DATE");
}

void CommandLine::addSelection(CLI::App *command)
{
    addDays(command, m_selection.days);
    command->add_option("--profile", m_selection.profile, "Of this profile (APN) only")
        ->type_name("NAME");
    command->add_option("--sim", m_selection.sim, "Of the SIM whose number ends so only")
        ->type_name("NUMBER");
    command->add_option("--limit", m_selection.limit, "That many at most, those that started last")
        ->type_name("NUMBER");
}

void CommandLine::addList()
{
    CLI::App *const command = addCommand("list", "List connections by their start");
    addSelection(command);
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
    addSelection(command);
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
    addSelection(command);
    command
        ->add_option_function<std::string>(
            "--format",
            [this](const std::string &name) {
                m_export.format = chosenFrom(formats::exportFormats, "--format", name);
            },
            helpOf(formats::exportFormats) + "; csv without it, json with --json")
        ->type_name(choiceOf(formats::exportFormats))
        ->excludes("--json");
    command->add_option("--output", m_export.outputPath, "Write to this file; - is standard output")
        ->type_name("FILE")
        ->check(checkFileName);
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
            "and hour, day, month or year; one in all without it")
        ->type_name("WHAT,...");
    command
        ->add_flag("--by-start", m_totals.countsAtStart,
                   "Count finished connections, each wholly at its start, as the window does")
        ->disable_flag_override();
    command->add_flag("--finished", m_totals.isOfFinished, "Leave out connections that still last")
        ->disable_flag_override();
    addDays(command, m_totals.days);
    command->callback([this] { m_action = [this] { showTotals(m_common, m_totals); }; });
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
        "record", "Record connections while they last, until a signal ends it");
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
    command->callback([this] { m_action = [this] { recordConnections(m_common, m_record); }; });
}

int complainOfUsage(const CLI::ParseError &error)
{
    const int code = complain(ExitCode::Usage, error.what());
    std::cerr << "connrecord --help tells what is possible.\n";
    return code;
}

void parseAndRun(int argc, char **argv)
{
    CommandLine commandLine;
    try {
        commandLine.parse(argc, argv);
    } catch (const CLI::Success &helpOrVersion) {
        return Output().write(commandLine.textFor(helpOrVersion));
    }
    commandLine.run();
}

} // namespace

int runCommandLine(int argc, char **argv)
{
    // A destructor that finds no memory cannot pass it on to where the others are caught.
    std::set_terminate(endWithSentence);
    try {
        parseAndRun(argc, argv);
        return static_cast<int>(ExitCode::Success);
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
