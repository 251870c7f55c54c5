// SPDX-License-Identifier: MIT
#pragma once

#include "formats/ConnectionWriter.h"
#include "history/Store.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>

namespace common
{

/// Takes the next piece of a text, of whole characters.
using TextSink = std::function<void(std::string_view piece)>;

/// What of the selected connections a document holds: without more, all that are finished.
struct Extent {
    /// Finished ones with higher keys only, which have come later.
    std::int64_t afterKey = std::numeric_limits<std::int64_t>::min();
    bool hasRunning = false; ///< those that last, too
};

/// Writes the document of the selected connections piece by piece, holding one at a time,
/// and returns how many those were. What the functions given throw is passed on. Until
/// the store has opened the history and read some of it, nothing is written.
history::Result<std::size_t>
writeConnections(const history::Store &store, const history::ConnectionSelection &selection,
                 const Extent &extent, formats::ConnectionWriter &writer, const TextSink &sink,
                 const history::Store::Progress &progress = {});

} // namespace common
