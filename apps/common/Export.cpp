// SPDX-License-Identifier: MIT
#include "Export.h"

namespace common
{

namespace
{

constexpr std::size_t pieceBytes = 65536;

} // namespace

history::Result<std::size_t> writeConnections(const history::Store &store,
                                              const history::ConnectionSelection &selection,
                                              Running running, formats::ConnectionWriter &writer,
                                              const TextSink &sink,
                                              const history::Store::Progress &progress)
{
    std::string text;
    std::size_t done = 0;
    writer.begin(text);
    const auto finishOne = [&] {
        ++done;
        if (text.size() >= pieceBytes) {
            sink(text);
            text.clear();
        }
        if (progress)
            progress(done);
    };
    const auto add = [&](const history::Connection &connection) {
        writer.add(connection, text);
        finishOne();
    };
    const auto addRunning = [&](const history::OpenConnection &connection) {
        writer.addRunning(connection, text);
        finishOne();
    };
    auto count = running == Running::Written ? store.visit(selection, add, addRunning)
                                             : store.visit(selection, add);
    if (!count)
        return count;
    writer.end(text);
    sink(text);
    return done;
}

} // namespace common
