// SPDX-License-Identifier: MIT
#pragma once

#include "LogCompletion.h"
#include "history/ConnectionSpool.h"
#include "history/Sentence.h"
#include "history/Store.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace formats
{

/// What a file holds and no connection can be made of.
struct Unusable {
    history::Sentence reason; ///< a clause
    std::size_t count = 0;
    std::size_t firstPlace = 0; ///< of the first such event
    std::size_t firstFile = 0;  ///< the place of its file among those that were read
    std::int64_t firstLine = 0;
    std::string firstText; ///< the beginning of that line
};

/// A year that does not follow from what a log shows.
struct GuessedYear {
    history::Sentence log; ///< its name, for messages
    int lastYear = 0;
};

/// What the files of one import hold together.
struct Imported {
    std::vector<history::Connection> connections; ///< of a log; of every other file in the spool
    std::vector<ProfileSource> profileSources;    ///< of each of these
    std::vector<Unusable> unusable;
    std::optional<GuessedYear> guessedYear;
    std::unique_ptr<history::ConnectionSpool> spool; ///< null for a log

    std::size_t size() const { return spool ? spool->size() : connections.size(); }
};

/// Stores the connections that the history does not have yet, all or none. What a log
/// knows more about one that is there is taken over.
history::Result<history::Store::Merged> addImported(history::Store &store, const Imported &imported,
                                                    const history::Store::Progress &progress);

} // namespace formats
