// SPDX-License-Identifier: MIT
#include "FileOptions.h"

#include "OptionChoice.h"

#include <CLI/CLI.hpp>

namespace connrecord
{

namespace
{

void addOutputPath(CLI::App &command, std::string &path)
{
    command.add_option("--output", path, "Write to this file; - is standard output")
        ->type_name("FILE")
        ->check(checkFileName);
}

} // namespace

std::string checkFileName(const std::string &name)
{
    return name.empty() ? "the name of the file is empty" : std::string();
}

std::string checkName(const std::string &name)
{
    return name.empty() ? "the name is empty" : std::string();
}

void addExportOptions(CLI::App &command, ExportRequest &request)
{
    command
        .add_option_function<std::string>(
            "--format",
            [&request](const std::string &name) {
                request.format = chosenFrom(formats::exportFormats, "--format", name);
            },
            helpOf(formats::exportFormats) + "; csv without it, json with --json")
        ->type_name(choiceOf(formats::exportFormats))
        ->excludes("--json");
    command
        .add_option("--after", request.after,
                    "Only what has come since this key was given, and what lasts; 0 for all")
        ->type_name("KEY");
    command
        .add_option("--machine", request.machine,
                    "Name of this machine in jsonl; a number of its own without it")
        ->type_name("NAME")
        ->check(checkName);
    addOutputPath(command, request.outputPath);
}

void addMetricsOptions(CLI::App &command, MetricsRequest &request)
{
    command
        .add_option_function<std::string>(
            "--format",
            [&request](const std::string &name) {
                request.format = chosenFrom(metricsFormats, "--format", name);
            },
            helpOf(metricsFormats) + "; prometheus without it")
        ->type_name(choiceOf(metricsFormats));
    addOutputPath(command, request.outputPath);
}

} // namespace connrecord
