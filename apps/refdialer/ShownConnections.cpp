// SPDX-License-Identifier: MIT
#include "ShownConnections.h"

#include <algorithm>

namespace refdialer
{

ShownConnections::ShownConnections(const std::vector<history::Connection> &rows)
{
    m_rows.reserve(rows.size());
    for (const history::Connection &connection : rows) {
        const std::uint64_t fingerprint = history::Store::fingerprintOf(connection);
        // One that the store does not have is known by its values alone.
        const std::uint64_t identity =
            connection.key > 0 ? std::uint64_t(connection.key) : fingerprint;
        m_rows.push_back(
            {identity,
             fingerprint,
             {connection.connectedSeconds, connection.uploadedBytes, connection.downloadedBytes}});
        m_fingerprint += fingerprint;
    }
}

std::uint64_t ShownConnections::identity(int row) const
{
    return row >= 0 && row < count() ? m_rows[std::size_t(row)].identity : 0;
}

ConnectionValues ShownConnections::values(int row) const
{
    return row >= 0 && row < count() ? m_rows[std::size_t(row)].values : ConnectionValues();
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
