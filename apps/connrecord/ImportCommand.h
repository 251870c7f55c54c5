// SPDX-License-Identifier: MIT
#pragma once

#include "Commands.h"

#include <optional>
#include <string>
#include <vector>

namespace connrecord
{

struct ImportRequest {
    enum class Format { Csv, Pppd };

    Format format = Format::Csv;
    std::vector<std::string> paths; ///< "-": standard input; several logs are one
    std::string profile;     ///< for connections of a pppd log that shows no APN; may be empty
    std::optional<int> year; ///< of a log's last line, if that one shows none
};

/// Stores the connections of a file that the store does not have yet, all or
/// none, and says on standard output how many that were. Throws Failure.
void importConnections(const CommonRequest &common, const ImportRequest &request);

} // namespace connrecord
