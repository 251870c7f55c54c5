// SPDX-License-Identifier: MIT
#include "StoredIdentities.h"

#include "Fingerprint.h"

#include <algorithm>

namespace history
{

StoredIdentities::StoredIdentities(SQLite::Database &database, const TimeRange &range)
    : m_one(database, "WHERE key = ?")
{
    ConnectionQuery query(database, "WHERE start_utc >= ? AND start_utc < ?");
    query.bind(1, range.fromUtc);
    query.bind(2, range.untilUtc);
    while (query.next()) {
        query.row().readInto(m_stored);
        m_entries.push_back({identityFingerprintOf(m_stored), m_stored.key});
    }
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry &left, const Entry &right) {
        return left.fingerprint < right.fingerprint;
    });
}

bool StoredIdentities::take(const Connection &connection)
{
    const std::uint64_t fingerprint = identityFingerprintOf(connection);
    const auto first = std::lower_bound(
        m_entries.begin(), m_entries.end(), fingerprint,
        [](const Entry &entry, std::uint64_t value) { return entry.fingerprint < value; });
    if (first == m_entries.end())
        return false;
    const auto untaken = first->key < 0 ? first - first->key : first;
    for (auto entry = untaken; entry != m_entries.end() && entry->fingerprint == fingerprint;
         ++entry) {
        if (!isAt(*entry, connection))
            continue;
        entry->key = 0;
        if (entry == untaken)
            first->key = first - untaken - 1;
        return true;
    }
    return false;
}

bool StoredIdentities::isAt(const Entry &entry, const Connection &connection)
{
    if (entry.key <= 0)
        return false;
    m_one.restart();
    m_one.bind(1, entry.key);
    if (!m_one.next())
        return false;
    m_one.row().readInto(m_stored);
    m_one.restart(); // one that is being read holds its transaction open
    return isSame(m_stored, connection);
}

} // namespace history
