// SPDX-License-Identifier: MIT
#pragma once

#include "formats/ConnectionWriter.h"
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

} // namespace formats
