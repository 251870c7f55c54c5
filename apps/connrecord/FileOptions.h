// SPDX-License-Identifier: MIT
#pragma once

#include "ExportCommand.h"
#include "MetricsCommand.h"

#include <string>

namespace CLI
{
class App;
}

namespace connrecord
{

/// Why a file cannot have this name; nothing if it can. The file of no name is the folder that
/// the program runs in, which nobody means.
std::string checkFileName(const std::string &name);

/// The same for the name of something that has one.
std::string checkName(const std::string &name);

void addExportOptions(CLI::App &command, ExportRequest &request);
void addMetricsOptions(CLI::App &command, MetricsRequest &request);

} // namespace connrecord
