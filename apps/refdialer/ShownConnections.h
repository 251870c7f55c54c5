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

/// What the window keeps of a connection that a row shows: as many as there are rows.
struct ShownConnection {
    ShownConnection() = default;
    explicit ShownConnection(const history::Connection &connection);

    std::int64_t key = 0; ///< 0 for one that the store does not have
    std::uint64_t fingerprint = 0;
    std::int64_t startUtc = 0;
    std::int64_t endUtc = 0;
    ConnectionValues values;
};

/// Which connections the history table shows, row by row from the top.
class ShownConnections
{
public:
    ShownConnections() = default;
    explicit ShownConnections(std::vector<ShownConnection> rows);

    int count() const { return int(m_rows.size()); }
    const std::vector<ShownConnection> &rows() const { return m_rows; }
    /// Tells the row's connection from all others, also after they are loaded anew;
    /// 0 if there is no such row.
    std::uint64_t identity(int row) const;
    /// What the row's connection has taken; nothing if there is no such row.
    ConnectionValues values(int row) const;
    /// What Store::fingerprint gives for a store of just these.
    std::uint64_t fingerprint() const { return m_fingerprint; }

    /// The rows have moved: `order` has the former place of each, from the top.
    void rearrange(const std::vector<int> &order);
    /// The rows from `first` to `last` are not in the table any more.
    void remove(int first, int last);

private:
    std::vector<ShownConnection> m_rows;
    std::uint64_t m_fingerprint = 0;
};

} // namespace refdialer
