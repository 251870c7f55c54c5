// SPDX-License-Identifier: MIT
#include "ConnectionWalk.h"

#include "ConnectionTable.h"
#include "HourTable.h"

namespace history
{

namespace
{

// Keys are in the index by which it is sorted: rows that are not wanted are not read.
std::string inRange(const char *order)
{
    return std::string("WHERE start_utc >= ?1 AND start_utc < ?2 AND (?3 IS NULL OR key > ?3)") +
           order;
}

void bind(ConnectionQuery &query, std::int64_t fromUtc, const ConnectionSelection &selection)
{
    query.bind(1, fromUtc);
    query.bind(2, selection.range.untilUtc);
    if (selection.afterKey)
        query.bind(3, *selection.afterKey);
}

} // namespace

ConnectionWalk::ConnectionWalk(SQLite::Database &database, HourTable &hours,
                               const ConnectionSelection &selection)
    : m_database(database)
    , m_hours(hours)
    , m_selection(selection)
    , m_firstUtc(selection.range.fromUtc)
    , m_firstKey(std::numeric_limits<std::int64_t>::min())
{
}

std::size_t ConnectionWalk::visit(const ConnectionVisitor &visitor)
{
    const bool isLimited = m_selection.most < std::numeric_limits<std::size_t>::max();
    if (isLimited && !findFirst())
        return 0;
    ConnectionQuery query(m_database, inRange(" ORDER BY start_utc, key"));
    bind(query, m_firstUtc, m_selection);
    std::size_t count = 0;
    while (query.next()) {
        query.row().readInto(m_connection);
        if (!isSelected(m_connection))
            continue;
        if (m_selection.withHours)
            m_hours.readInto(m_connection.hours, m_connection.key);
        visitor(m_connection);
        ++count;
    }
    return count;
}

bool ConnectionWalk::isSelected(const Connection &connection) const
{
    const bool isBeforeFirst = connection.startUtc == m_firstUtc && connection.key < m_firstKey;
    return !isBeforeFirst && (!m_selection.isWanted || m_selection.isWanted(connection));
}

/// Goes back from the newest one, which costs as much as what is to be shown.
bool ConnectionWalk::findFirst()
{
    ConnectionQuery query(m_database, inRange(" ORDER BY start_utc DESC, key DESC"));
    bind(query, m_selection.range.fromUtc, m_selection);
    std::size_t found = 0;
    std::int64_t utc = 0;
    std::int64_t key = 0;
    while (found < m_selection.most && query.next()) {
        query.row().readInto(m_connection);
        if (!isSelected(m_connection))
            continue;
        utc = m_connection.startUtc;
        key = m_connection.key;
        ++found;
    }
    m_firstUtc = utc;
    m_firstKey = key;
    return found > 0;
}

} // namespace history
