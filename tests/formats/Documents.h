// SPDX-License-Identifier: MIT
#pragma once

#include "formats/ConnectionWriter.h"
#include "formats/CsvFormat.h"
#include "formats/Imported.h"
#include "history/Connection.h"

#include <QByteArray>

#include <vector>

namespace formats
{

/// What export writes of these connections.
inline QByteArray toCsv(const std::vector<history::Connection> &connections)
{
    return QByteArray::fromStdString(documentOf(*csvWriter(), connections));
}

inline QByteArray toJsonText(const std::vector<history::Connection> &connections)
{
    return QByteArray::fromStdString(documentOf(*jsonWriter(), connections));
}

/// All that a file holds.
inline std::vector<history::Connection> connectionsFromCsv(LineReader &lines)
{
    std::vector<history::Connection> connections;
    readCsv(lines, [&](const history::Connection &each) { connections.push_back(each); });
    return connections;
}

inline std::vector<history::Connection> connectionsOf(const Imported &imported)
{
    if (!imported.spool)
        return imported.connections;
    std::vector<history::Connection> connections;
    history::Connection connection;
    for (imported.spool->rewind(); imported.spool->next(connection);)
        connections.push_back(connection);
    return connections;
}

} // namespace formats
