// SPDX-License-Identifier: MIT
#pragma once

#include "formats/ConnectionWriter.h"
#include "history/Store.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace common
{

/// Takes the next piece of a text, of whole characters.
using TextSink = std::function<void(std::string_view piece)>;

/// Whether a document holds the connections that last, behind those that are finished.
enum class Running { LeftOut, Written };

/// Writes the document of the selected connections piece by piece, holding one at a time,
/// and returns how many those were. What the functions given throw is passed on. Until
/// the store has opened the history and read some of it, nothing is written.
history::Result<std::size_t> writeConnections(const history::Store &store,
                                              const history::ConnectionSelection &selection,
                                              Running running, formats::ConnectionWriter &writer,
                                              const TextSink &sink,
                                              const history::Store::Progress &progress = {});

} // namespace common
