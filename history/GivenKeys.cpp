// SPDX-License-Identifier: MIT
#include "GivenKeys.h"

#include "RowQuery.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

namespace history
{

namespace
{

std::int64_t lastKeyIn(SQLite::Database &database)
{
    return database
        .execAndGet("SELECT coalesce((SELECT seq FROM sqlite_sequence WHERE name = 'connection'),"
                    " 0)")
        .getInt64();
}

/// What is between one key and the next one that is there, and behind the last one.
std::vector<KeyRange> gapsIn(SQLite::Database &database, std::int64_t lastKey)
{
    RowQuery query(database, "SELECT before + 1, key - 1 FROM (SELECT key,"
                             " lag(key, 1, 0) OVER (ORDER BY key) AS before FROM"
                             " (SELECT key FROM connection UNION ALL SELECT ?1 + 1))"
                             " WHERE key > before + 1");
    query.bind(1, lastKey);
    std::vector<KeyRange> gaps;
    while (query.next())
        gaps.push_back({query.row().integer(0), query.row().integer(1)});
    return gaps;
}

} // namespace

GivenKeys givenKeysIn(SQLite::Database &database)
{
    GivenKeys keys;
    keys.last = lastKeyIn(database);
    // Mostly none is missing, which is sooner known.
    if (database.execAndGet("SELECT count(*) FROM connection").getInt64() != keys.last)
        keys.removed = gapsIn(database, keys.last);
    return keys;
}

} // namespace history
