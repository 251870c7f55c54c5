// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"

#include "history/Store.h"

#include <QHash>
#include <QPair>

#include <vector>

namespace refdialer
{

/// The values that are rounded in the history table, as the store has them. Which
/// record a row shows only the plug-in knows, so it is found by what it shows.
class TrueValues
{
public:
    /// The finished connections in the store at this path; none if it cannot be read.
    static TrueValues readFrom(const std::string &storePath);

    explicit TrueValues(const std::vector<history::Connection> &connections);

    /// The connection that the row shows, or what can be read from the row itself,
    /// with the key 0, where the store has none. Each connection is given once, so that rows which
    /// show the same still differ.
    history::Connection take(const HistoryRow &row);

private:
    using Times = QPair<qint64, qint64>;
    using Key = QPair<QString, Times>;

    QHash<Key, std::vector<history::Connection>> m_connections;
};

} // namespace refdialer
