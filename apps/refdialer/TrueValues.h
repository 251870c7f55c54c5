// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"
#include "ShownConnections.h"

#include <QHash>

#include <cstddef>
#include <cstdint>
#include <future>
#include <string>
#include <utility>
#include <vector>

namespace usage
{
class LocalClock;
}

namespace refdialer
{

/// The values that are rounded in the history table, as the store has them. Which
/// record a row shows only the plug-in knows, so it is found by what it shows.
class TrueValues
{
public:
    /// The finished connections in the store at this path; none, and not all, if it cannot
    /// be read.
    static TrueValues readFrom(const std::string &storePath);
    /// The same on a thread of its own, for who has something else to do meanwhile.
    static std::future<TrueValues> beginReading(const std::string &storePath);

    TrueValues() = default;
    explicit TrueValues(const std::vector<history::Connection> &connections);

    /// The connection that the row shows, or what can be read from the row itself,
    /// with the key 0, where the store has none. Each connection is given once, so that rows which
    /// show the same still differ.
    ShownConnection take(const HistoryRow &row);
    /// Whether these are all connections that there are.
    bool areAll() const { return m_areAll; }

private:
    /// Seconds as a clock on the wall shows them: a row knows no time zone, and at the
    /// end of summer time one hour is shown twice.
    using Times = std::pair<std::int64_t, std::int64_t>;

    /// What a connection is found by; small, since many are looked at to find one.
    struct Entry {
        Times times;
        int profile; // its number
        int index;   // of the connection; -1 once it is taken
    };

    void reserve(std::size_t count);
    void add(const history::Connection &connection, const usage::LocalClock &clock);
    void sortByTimes();
    Entry *entryShownBy(const HistoryRow &row);
    const ConnectionValues &valuesOf(const Entry &entry) const;

    std::vector<ShownConnection> m_connections;
    std::vector<Entry> m_entries;   // by their times
    QHash<QString, int> m_profiles; // many connections share one
    bool m_areAll = true;
};

/// What the rows of the plug-in's table show, from the top.
ShownConnections shownIn(const QTableWidget &table, TrueValues values);

} // namespace refdialer
