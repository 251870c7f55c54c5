// SPDX-License-Identifier: MIT
#pragma once

#include "usage/CalendarTime.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace formats
{

/// One line of a system log, taken apart: `<6>Nov 10 17:02:09 host daemon.info
/// pppd[485]: message` and the other forms that log daemons write.
struct LogLine {
    std::optional<usage::CalendarTime> time; ///< nothing if it cannot be read
    std::string_view host;                   ///< empty if none is named in front of the process
    std::string_view process;                ///< its name without folders; empty if none is named
    std::int64_t pid = -1;                   ///< -1 if none is named
    std::string_view message;                ///< without a process: all that follows the time
};

/// The views of the result point into `text`.
LogLine parseLogLine(std::string_view text);

} // namespace formats
