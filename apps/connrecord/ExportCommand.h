// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "Output.h"
#include "formats/Formats.h"

#include <optional>
#include <string>

namespace connrecord
{

struct ExportRequest {
    SelectionRequest selection;
    const formats::ExportFormat *format = &formats::exportFormats.front();
    std::string outputPath = standardOutputPath;
    std::optional<std::string> after;   ///< only what has come since the key was given
    std::optional<std::string> machine; ///< the name that this one goes by
};

/// Writes connections to a file. Throws Failure.
void exportConnections(const CommonRequest &common, const ExportRequest &request);

} // namespace connrecord
