// SPDX-License-Identifier: MIT
#pragma once

#include "PppdLog.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace formats
{

/// A log as it was read from one file, and that file's last change.
struct LogFile {
    PppdLog log;
    std::int64_t changedUtc = 0;
};

/// Several logs as one in the order of time.
struct JoinedLog {
    /// With their moments; a line that is in several of the files, once.
    std::vector<PppdEvent> events;
    int lastYear = 0;              ///< of the last line
    bool isYearGuess = false;      ///< whether that may as well be another one
    bool hasImpossibleDay = false; ///< a 29 February in a year without one
};

/// `lastYear` is that of the last line of all, if that one shows none; see YearResolver.
JoinedLog joinLogs(std::vector<LogFile> files, std::optional<int> lastYear);

} // namespace formats
