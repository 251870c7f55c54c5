// SPDX-License-Identifier: MIT
#pragma once

#include "ClockRuns.h"
#include "CsvFormat.h"
#include "PppdMessage.h"
#include "usage/CalendarTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace formats
{

class LineReader;

/// One message of pppd or chat in a log, with where it stands.
struct PppdEvent {
    PppdMessage message;
    std::string messageText;                 ///< its beginning
    std::optional<usage::CalendarTime> time; ///< nothing if the log shows no readable one
    std::size_t run = 0;                     ///< the place of the time's run in PppdLog::clock
    std::string host;                        ///< empty if the log names none
    std::string process;                     ///< empty if the log names none
    std::int64_t pid = -1;                   ///< -1: the log names no process
    std::optional<std::int64_t> utc;         ///< when that was; set by joinLogs()
    std::size_t place = 0;                   ///< among the events of a joined log
    std::size_t file = 0;                    ///< the place of its file among those that were joined
    std::int64_t line = 0;                   ///< counted from 1
    std::string lineText;                    ///< its beginning
};

struct PppdLog {
    /// From the oldest line to the newest.
    std::vector<PppdEvent> events;
    /// Of all its lines.
    ClockRuns clock;

    /// What it takes in memory: its events and the runs of its clock.
    std::size_t size() const { return events.size() + clock.runs().size(); }
};

/// The largest size of logs that are read at once; they take about a kilobyte for each.
constexpr std::size_t largestLogSize = 1000000;

/// Thrown where a log grows beyond the size that it may have.
struct LogTooLarge {
};

/// Reads a system log, also one whose newest line is the first.
PppdLog readPppdLog(LineReader &lines, std::size_t largestSize = largestLogSize);

/// A log may hold copies of the messages of pppd and chat under the name of the script
/// that started them, or no process names at all: such lines count only where the log
/// has none under pppd's or chat's own name, and are taken away elsewhere.
void dropCopies(std::vector<PppdEvent> &events);

/// Longer lines need not be read to their end: no message, even as JSON, is that long.
constexpr std::size_t longestLogLine = 65536;

} // namespace formats
