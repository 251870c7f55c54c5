// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"
#include "formats/Formats.h"

#include <string>
#include <vector>

namespace connrecord
{

struct ImportRequest {
    const formats::ImportFormat *format = nullptr;
    std::vector<std::string> paths; ///< "-": standard input; several logs are one
    formats::ImportOptions options;
};

/// Stores the connections of a file that the store does not have yet, all or
/// none, and says on standard output how many that were. Throws Failure.
void importConnections(const CommonRequest &common, const ImportRequest &request);

} // namespace connrecord
