// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarTime.h"
#include "ClockRuns.h"
#include "CsvFormat.h"
#include "PppdMessage.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace refhost
{

class LineReader;

/// One message of pppd or chat in a log, with where it stands.
struct PppdEvent {
    PppdMessage message;
    std::optional<CalendarTime> time; ///< nothing if the log shows no readable one
    std::size_t run = 0;              ///< the place of the time's run in PppdLog::clock
    std::string host;                 ///< empty if the log names none
    std::string process;              ///< empty if the log names none
    std::int64_t pid = -1;            ///< -1: the log names no process
    std::int64_t line = 0;            ///< counted from 1
    std::string lineText;             ///< its beginning
};

struct PppdLog {
    /// In the order of the log, each message once.
    std::vector<PppdEvent> events;
    /// Of all its lines.
    ClockRuns clock;
};

/// Reads a system log. A log may hold copies of the messages of pppd and chat
/// under the name of the script that started them, or no process names at all:
/// such lines count only where the log has none under pppd's or chat's own name.
PppdLog readPppdLog(LineReader &lines, const ReadProgress &progress);

/// Longer lines need not be read to their end: no message is that long.
constexpr std::size_t longestLogLine = 8192;

} // namespace refhost
