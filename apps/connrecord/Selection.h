// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"
#include "usage/LocalDays.h"

#include <optional>
#include <string>
#include <vector>

namespace connrecord
{

/// Days as the user wrote them.
struct DaysRequest {
    std::optional<std::string> from;
    std::optional<std::string> to;
};

/// Throws Failure if they are no days, or none from the first to the last.
usage::LocalDays daysOf(const DaysRequest &request);

/// Which connections a command is for: all, but for what is given.
struct SelectionRequest {
    DaysRequest days; ///< of their starts
    std::optional<std::string> profile;
    std::optional<std::string> sim;   ///< its number, or the end of it
    std::optional<std::string> limit; ///< that many at most, the ones that started last

    bool isAll() const { return !days.from && !days.to && !profile && !sim && !limit; }
};

/// The same for the store. Throws Failure.
history::ConnectionSelection selectionOf(const SelectionRequest &request);

/// Those of the finished connections, by start time, then by key. Throws Failure.
std::vector<history::Connection> selectedFrom(const history::Store &store,
                                              const SelectionRequest &request);

} // namespace connrecord
