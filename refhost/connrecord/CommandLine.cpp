// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Commands.h"
#include "Failure.h"
#include "ImportCommand.h"
#include "StatisticsStore.h"
#include "TotalsCommand.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace refhost
{

namespace
{

constexpr const char *exitCodes = R"(Exit codes:
  0  success
  1  the request cannot be met: unknown key, refused value
  2  the command line is wrong
  3  the store cannot be used
  4  the input file is wrong or cannot be read
  5  the output cannot be written)";

ImportRequest::Format formatNamed(const std::string &name)
{
    if (name == "csv")
        return ImportRequest::Format::Csv;
    if (name == "pppd")
        return ImportRequest::Format::Pppd;
    throw CLI::ValidationError("--format", "it is csv or pppd, not " + name);
}

TotalsGroups groupsNamed(const std::string &names)
{
    if (names == "profile")
        return {true, false};
    if (names == "month")
        return {false, true};
    if (names == "profile,month")
        return {true, true};
    throw CLI::ValidationError("--by", "it is profile, month or profile,month, not " + names);
}

/// Declares the commands, and remembers the one that the user chooses.
class CommandLine
{
public:
    CommandLine();

    CLI::App &parser() { return m_parser; }
    void run() const { m_action(); }

private:
    CLI::App *addCommand(const char *name, const char *description);
    void addList();
    void addAdd();
    void addRemove();
    void addExport();
    void addImport();
    void addTotals();

    CLI::App m_parser;
    CommonRequest m_common;
    AddRequest m_add;
    std::vector<std::string> m_keys;
    std::optional<std::string> m_outputPath;
    ImportRequest m_import;
    TotalsRequest m_totals;
    std::function<void()> m_action;
};

CommandLine::CommandLine()
    : m_parser("Shows and changes the history of mobile-broadband connections.", "connrecord")
{
    m_common.storePath = StatisticsStore::defaultPath();
    m_parser.add_option("--store", m_common.storePath, "The history's file")
        ->type_name("FILE")
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
}

CLI::App *CommandLine::addCommand(const char *name, const char *description)
{
    CLI::App *const command = m_parser.add_subcommand(name, description);
    command->add_flag("--json", m_common.json, "Write JSON, for programs");
    command->footer(exitCodes);
    return command;
}

void CommandLine::addList()
{
    CLI::App *const command = addCommand("list", "List all connections by their start");
    command->callback([this] { m_action = [this] { listConnections(m_common); }; });
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
    command->add_option("KEY", m_keys, "Key of a connection, as list shows it")
        ->type_name("")
        ->required();
    command->callback([this] { m_action = [this] { removeConnections(m_common, m_keys); }; });
}

void CommandLine::addExport()
{
    CLI::App *const command = addCommand("export", "Write all connections as CSV");
    command->add_option("--output", m_outputPath, "Write to this file, not to standard output")
        ->type_name("FILE");
    command->callback([this] { m_action = [this] { exportConnections(m_common, m_outputPath); }; });
}

void CommandLine::addImport()
{
    CLI::App *const command =
        addCommand("import", "Add the connections of a file that are not there yet");
    command
        ->add_option_function<std::string>(
            "--format", [this](const std::string &name) { m_import.format = formatNamed(name); },
            "csv, as export writes it, or pppd, a system log")
        ->type_name("csv|pppd")
        ->required();
    command
        ->add_option("--profile", m_import.profile,
                     "Profile for the connections of a log that shows no APN")
        ->type_name("NAME");
    command->add_option("--year", m_import.year, "Year of the last line of a log without years")
        ->type_name("YYYY")
        ->check(CLI::Range(1970, 2105).description(""));
    command->add_option("FILE", m_import.path, "The file; - is standard input")
        ->type_name("")
        ->required();
    command->callback([this] { m_action = [this] { importConnections(m_common, m_import); }; });
}

void CommandLine::addTotals()
{
    CLI::App *const command =
        addCommand("totals", "Add up connections, each in the local month of its start");
    command
        ->add_option_function<std::string>(
            "--by", [this](const std::string &names) { m_totals.groups = groupsNamed(names); },
            "One sum for each of these; one in all without it")
        ->type_name("profile|month|profile,month");
    command
        ->add_option("--from", m_totals.from,
                     "First day counted, as 2024-05-31, in local time; by the start")
        ->type_name("DATE");
    command->add_option("--to", m_totals.to, "Last day counted, itself included")
        ->type_name("DATE");
    command->callback([this] { m_action = [this] { showTotals(m_common, m_totals); }; });
}

int complain(ExitCode code, const std::string &sentence)
{
    std::cerr << "connrecord: " << sentence << '\n';
    return static_cast<int>(code);
}

int complainOfUsage(const CLI::ParseError &error)
{
    return complain(ExitCode::Usage,
                    std::string(error.what()) + "\nconnrecord --help tells what is possible.");
}

} // namespace

int runCommandLine(int argc, char **argv)
{
    CommandLine commandLine;
    try {
        commandLine.parser().parse(argc, argv);
        commandLine.run();
        return static_cast<int>(ExitCode::Success);
    } catch (const CLI::Success &helpOrVersion) {
        return commandLine.parser().exit(helpOrVersion);
    } catch (const CLI::ParseError &error) {
        return complainOfUsage(error);
    } catch (const Failure &failure) {
        return complain(failure.exitCode(), failure.what());
    }
}

} // namespace refhost
