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
                                              formats::ConnectionWriter &writer,
                                              const TextSink &sink,
                                              const history::Store::Progress &progress)
{
    std::string text;
    std::size_t done = 0;
    writer.begin(text);
    auto count = store.visit(selection, [&](const history::Connection &connection) {
        writer.add(connection, text);
        if (text.size() >= pieceBytes) {
            sink(text);
            text.clear();
        }
        if (progress)
            progress(++done);
    });
    if (!count)
        return count;
    writer.end(text);
    sink(text);
    return count;
}

} // namespace common
