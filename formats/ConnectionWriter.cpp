// SPDX-License-Identifier: MIT
#include "ConnectionWriter.h"

namespace formats
{

std::string documentOf(ConnectionWriter &writer,
                       const std::vector<history::Connection> &connections)
{
    std::string text;
    writer.begin(text);
    for (const history::Connection &connection : connections)
        writer.add(connection, text);
    writer.end(text);
    return text;
}

} // namespace formats
