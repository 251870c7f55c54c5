// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionTable.h"

#include <cstdint>
#include <vector>

namespace history
{

/// Which of the connections that are given are in the table already. Of each it keeps two
/// numbers, and reads the rest again only of what may be the same. Operations throw
/// SQLite::Exception.
class StoredIdentities
{
public:
    /// Of those that start in `range`.
    StoredIdentities(SQLite::Database &database, const TimeRange &range);

    /// Whether there is such a connection that has not been taken yet, which it then is.
    bool take(const Connection &connection);

private:
    struct Entry {
        std::uint64_t fingerprint;
        /// Of the connection; 0 once it is taken. The first one of a fingerprint has, below 0,
        /// how many from it on are taken: equal ones may be many.
        std::int64_t key;
    };
    using Entries = std::vector<Entry>;

    bool isAt(const Entry &entry, const Connection &connection);

    Entries m_entries; ///< by fingerprint
    ConnectionQuery m_one;
    Connection m_stored;
};

} // namespace history
