// SPDX-License-Identifier: MIT
#include "ShownConnections.h"

#include <algorithm>
#include <utility>

namespace refdialer
{

ShownConnection::ShownConnection(const history::Connection &connection)
    : key(connection.key)
    , fingerprint(history::Store::fingerprintOf(connection))
    , startUtc(connection.startUtc)
    , endUtc(connection.endUtc)
    , values{connection.connectedSeconds, connection.uploadedBytes, connection.downloadedBytes}
{
}

ShownConnections::ShownConnections(std::vector<ShownConnection> rows)
    : m_rows(std::move(rows))
{
    for (const ShownConnection &row : m_rows)
        m_fingerprint += row.fingerprint;
}

std::uint64_t ShownConnections::identity(int row) const
{
    if (row < 0 || row >= count())
        return 0;
    const ShownConnection &connection = m_rows[std::size_t(row)];
    // One that the store does not have is known by its values alone.
    return connection.key > 0 ? std::uint64_t(connection.key) : connection.fingerprint;
}

ConnectionValues ShownConnections::values(int row) const
{
    return row >= 0 && row < count() ? m_rows[std::size_t(row)].values : ConnectionValues();
}

void ShownConnections::rearrange(const std::vector<int> &order)
{
    std::vector<ShownConnection> rows;
    rows.reserve(order.size());
    for (const int row : order)
        rows.push_back(m_rows[std::size_t(row)]);
    m_rows = std::move(rows);
}

void ShownConnections::remove(int first, int last)
{
    const auto begin = m_rows.begin() + std::min(first, count());
    const auto end = m_rows.begin() + std::min(last + 1, count());
    for (auto row = begin; row != end; ++row)
        m_fingerprint -= row->fingerprint;
    m_rows.erase(begin, end);
}

} // namespace refdialer
