// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"

#include "history/Store.h"

#include <cstddef>
#include <cstdint>
#include <utility>
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

    explicit TrueValues(std::vector<history::Connection> connections);

    /// The connection that the row shows, or what can be read from the row itself,
    /// with the key 0, where the store has none. Each connection is given once, so that rows which
    /// show the same still differ.
    history::Connection take(const HistoryRow &row);

private:
    /// Seconds as a clock on the wall shows them: a row knows no time zone, and at the
    /// end of summer time one hour is shown twice.
    using Times = std::pair<std::int64_t, std::int64_t>;

    struct Entry {
        Times times;
        std::size_t index = 0; // of the connection
        bool isTaken = false;
    };

    Entry *entryShownBy(const HistoryRow &row);

    std::vector<history::Connection> m_connections;
    std::vector<Entry> m_entries; // by their times
};

} // namespace refdialer
