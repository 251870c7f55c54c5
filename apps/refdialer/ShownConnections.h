// SPDX-License-Identifier: MIT
#pragma once

#include "history/Store.h"

#include <cstdint>
#include <vector>

namespace refdialer
{

/// What connections have taken, rounded nowhere.
struct ConnectionValues {
    std::int64_t connectedSeconds = 0;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
};

/// Which connections the history table shows, row by row from the top.
class ShownConnections
{
public:
    ShownConnections() = default;
    explicit ShownConnections(const std::vector<history::Connection> &rows);

    int count() const { return int(m_rows.size()); }
    /// Tells the row's connection from all others, also after they are loaded anew;
    /// 0 if there is no such row.
    std::uint64_t identity(int row) const;
    /// What the row's connection has taken; nothing if there is no such row.
    ConnectionValues values(int row) const;
    /// What Store::fingerprint gives for a store of just these.
    std::uint64_t fingerprint() const { return m_fingerprint; }

    /// The rows from `first` to `last` are not in the table any more.
    void remove(int first, int last);

private:
    struct Row {
        std::uint64_t identity;
        std::uint64_t fingerprint;
        ConnectionValues values;
    };

    std::vector<Row> m_rows;
    std::uint64_t m_fingerprint = 0;
};

} // namespace refdialer
