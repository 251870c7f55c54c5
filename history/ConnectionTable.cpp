// SPDX-License-Identifier: MIT
#include "ConnectionTable.h"

#include "ConnectionBatch.h"
#include "ConnectionMerge.h"
#include "ConnectionSource.h"
#include "Fingerprint.h"
#include "StoredIdentities.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

#include <algorithm>
#include <string>

namespace history
{

namespace
{

/// Those rows that may be one of the given connections: one pass over the time
/// in which they ended.
std::vector<Connection> storedCandidates(SQLite::Database &database,
                                         const std::vector<Connection> &given,
                                         const ConnectionMerge &merge)
{
    const auto [first, last] = std::minmax_element(
        given.begin(), given.end(),
        [](const Connection &left, const Connection &right) { return left.endUtc < right.endUtc; });
    ConnectionQuery query(database, "WHERE end_utc BETWEEN ? AND ?");
    query.bind(1, first->endUtc);
    query.bind(2, last->endUtc);
    std::vector<Connection> candidates;
    while (query.next()) {
        Connection stored = query.row().toConnection();
        if (merge.concerns(stored))
            candidates.push_back(std::move(stored));
    }
    return candidates;
}

} // namespace

ConnectionQuery::ConnectionQuery(const SQLite::Database &database, const std::string &condition)
    : RowQuery(database, selectionOf(connectionFields, ConnectionTable::name) + condition)
{
}

ConnectionTable::ConnectionTable(SQLite::Database &database)
    : m_database(database)
    , m_insertion(database, insertionOf(connectionFields, name))
    , m_removal(database, std::string("DELETE FROM ") + name + " WHERE key = ?")
{
}

std::int64_t ConnectionTable::count()
{
    return m_database.execAndGet("SELECT count(*) FROM connection").getInt64();
}

void ConnectionTable::visit(const TimeRange &range, const Visitor &visitor)
{
    ConnectionQuery query(m_database,
                          "WHERE start_utc >= ? AND start_utc < ? ORDER BY start_utc, key");
    query.bind(1, range.fromUtc);
    query.bind(2, range.untilUtc);
    while (query.next())
        visitor(query.row());
}

std::vector<Connection> ConnectionTable::list(const TimeRange &range)
{
    std::vector<Connection> connections;
    visit(range, [&](const ConnectionRow &row) { connections.push_back(row.toConnection()); });
    return connections;
}

bool ConnectionTable::visitLast(const Visitor &visitor)
{
    ConnectionQuery query(m_database, "ORDER BY end_utc DESC, key DESC LIMIT 1");
    if (!query.next())
        return false;
    visitor(query.row());
    return true;
}

std::uint64_t ConnectionTable::fingerprint()
{
    const Writes writesSoFar = writes();
    if (m_fingerprintWrites == writesSoFar)
        return m_fingerprint;
    m_fingerprintWrites.reset();
    m_fingerprint = 0;
    ConnectionQuery query(m_database, "");
    while (query.next())
        m_fingerprint += fingerprintOf(query.row());
    m_fingerprintWrites = writesSoFar;
    return m_fingerprint;
}

ConnectionTable::Writes ConnectionTable::writes()
{
    return {m_database.execAndGet("PRAGMA data_version").getInt64(), m_database.getTotalChanges()};
}

std::int64_t ConnectionTable::insert(const Connection &connection)
{
    SQLite::Statement &statement = m_insertion.ready();
    bindFields(statement, 1, connection, connectionFields);
    statement.exec();
    return m_database.getLastInsertRowid();
}

bool ConnectionTable::holds(const std::string &interfaceName, std::int64_t startUtc)
{
    SQLite::Statement query(m_database, "SELECT EXISTS (SELECT 1 FROM connection"
                                        " WHERE start_utc = ? AND interface_name = ?)");
    query.bind(1, startUtc);
    query.bind(2, interfaceName);
    query.executeStep();
    return query.getColumn(0).getInt() != 0;
}

std::size_t ConnectionTable::insertMissing(ConnectionSource &connections,
                                           const Insertion &insertOne,
                                           const Store::Progress &progress)
{
    StoredIdentities stored(m_database, connections.starts());
    std::size_t inserted = 0;
    std::size_t done = 0;
    ConnectionBatch batch(m_database, insertOne);
    for (connections.rewind(); connections.next(batch.next());) {
        if (!stored.take(batch.next())) {
            batch.add();
            ++inserted;
        }
        if (progress)
            progress(++done);
    }
    batch.finish();
    return inserted;
}

Store::Merged ConnectionTable::merge(const std::vector<Connection> &connections,
                                     const Insertion &insertOne, const Replacement &replaceOne,
                                     const Store::Completion &complete,
                                     const Store::Progress &progress)
{
    Store::Merged merged;
    if (connections.empty())
        return merged;
    const ConnectionMerge merge(connections);
    const auto stored = storedCandidates(m_database, connections, merge);
    const auto pairs = merge.pairsAmong(stored);
    for (std::size_t i = 0; i < connections.size(); ++i) {
        if (!pairs[i]) {
            insertOne(connections[i]);
            ++merged.added;
        } else if (Connection known = *pairs[i];
                   !isSame(known, connections[i]) && complete(known, i)) {
            replaceOne(known);
            ++merged.completed;
        }
        if (progress)
            progress(i + 1);
    }
    return merged;
}

bool ConnectionTable::remove(std::int64_t key)
{
    SQLite::Statement &statement = m_removal.ready();
    statement.bind(1, key);
    return statement.exec() == 1;
}

} // namespace history
