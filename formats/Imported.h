// SPDX-License-Identifier: MIT
#pragma once

#include "LogCompletion.h"
#include "history/Store.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace formats
{

/// What a file holds and no connection can be made of.
struct Unusable {
    std::string reason;
    std::size_t count = 0;
    std::size_t firstPlace = 0; ///< of the first such event
    std::size_t firstFile = 0;  ///< the place of its file among those that were read
    std::int64_t firstLine = 0;
    std::string firstText; ///< the beginning of that line
};

/// A year that does not follow from what a log shows.
struct GuessedYear {
    std::string log; ///< its name, for messages
    int lastYear = 0;
};

/// What the files of one import hold together.
struct Imported {
    std::vector<history::Connection> connections;
    std::vector<ProfileSource> profileSources; ///< of each connection; of a log alone
    std::vector<Unusable> unusable;
    std::optional<GuessedYear> guessedYear;
};

/// Counts a connection of that line that still lasted when the file was written: it comes
/// again when it has ended.
void countRunning(Imported &imported, std::int64_t line, std::string_view text);

/// Stores the connections that the history does not have yet, all or none. What a log
/// knows more about one that is there is taken over.
history::Result<history::Store::Merged> addImported(history::Store &store, const Imported &imported,
                                                    const history::Store::Progress &progress);

} // namespace formats
