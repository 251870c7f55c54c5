// SPDX-License-Identifier: MIT
#include "ConnectionTable.h"

#include "ConnectionMerge.h"
#include "Fingerprint.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <unordered_map>

namespace history
{

namespace
{

/// A query for whole rows. It calls SQLite itself: the wrapper's columns share
/// the ownership of their statement, which costs more than reading the value.
class RowQuery
{
public:
    RowQuery(const SQLite::Database &database, const std::string &condition)
        : m_database(database.getHandle())
    {
        const std::string sql =
            "SELECT key, profile, start_utc, end_utc, connected_seconds, uploaded_bytes,"
            " downloaded_bytes, ending, interface_name FROM connection " +
            condition;
        check(sqlite3_prepare_v2(m_database, sql.c_str(), -1, &m_statement, nullptr), SQLITE_OK);
    }
    ~RowQuery() { sqlite3_finalize(m_statement); }
    RowQuery(const RowQuery &) = delete;
    RowQuery &operator=(const RowQuery &) = delete;

    void bind(int index, std::int64_t value)
    {
        check(sqlite3_bind_int64(m_statement, index, value), SQLITE_OK);
    }

    /// Goes to the next row; false if there is none.
    bool next()
    {
        const int code = sqlite3_step(m_statement);
        if (code != SQLITE_ROW)
            check(code, SQLITE_DONE);
        return code == SQLITE_ROW;
    }

    ConnectionRow row() const { return ConnectionRow(m_statement); }

private:
    void check(int code, int expected) const
    {
        if (code != expected)
            throw SQLite::Exception(m_database, code);
    }

    sqlite3 *m_database;
    sqlite3_stmt *m_statement = nullptr;
};

struct ContentsHash {
    std::size_t operator()(const Connection *connection) const
    {
        std::size_t hash = std::hash<std::string>()(connection->profile);
        for (const std::int64_t value : {connection->startUtc, connection->endUtc,
                                         connection->uploadedBytes, connection->downloadedBytes})
            hash = hash * 1099511628211U ^ std::hash<std::int64_t>()(value);
        return hash;
    }
};

struct ContentsEqual {
    bool operator()(const Connection *left, const Connection *right) const
    {
        return hasSameContents(*left, *right);
    }
};

/// How often each connection is still to be inserted.
using Tally = std::unordered_map<const Connection *, std::size_t, ContentsHash, ContentsEqual>;

Tally tallyOf(const std::vector<Connection> &connections)
{
    Tally tally;
    tally.reserve(connections.size());
    for (const Connection &connection : connections)
        ++tally[&connection];
    return tally;
}

/// Those rows that may be one of the given connections: one pass over the time
/// in which they ended.
std::vector<Connection> storedCandidates(SQLite::Database &database,
                                         const std::vector<Connection> &given,
                                         const ConnectionMerge &merge)
{
    const auto [first, last] = std::minmax_element(
        given.begin(), given.end(),
        [](const Connection &left, const Connection &right) { return left.endUtc < right.endUtc; });
    RowQuery query(database, "WHERE end_utc BETWEEN ? AND ?");
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

/// Takes away what the table has already: one pass over the time that the
/// connections span, however many of them start at the same second.
void subtractStored(SQLite::Database &database, const std::vector<Connection> &connections,
                    Tally &tally)
{
    const auto [first, last] =
        std::minmax_element(connections.begin(), connections.end(),
                            [](const Connection &left, const Connection &right) {
                                return left.startUtc < right.startUtc;
                            });
    RowQuery query(database, "WHERE start_utc BETWEEN ? AND ?");
    query.bind(1, first->startUtc);
    query.bind(2, last->startUtc);
    while (query.next()) {
        const Connection stored = query.row().toConnection();
        const auto found = tally.find(&stored);
        if (found != tally.end() && found->second > 0)
            --found->second;
    }
}

/// To the first eight parameters, in the order of the table's columns.
void bindContents(SQLite::Statement &statement, const Connection &connection)
{
    statement.bind(1, connection.profile);
    statement.bind(2, connection.startUtc);
    statement.bind(3, connection.endUtc);
    statement.bind(4, connection.connectedSeconds);
    statement.bind(5, connection.uploadedBytes);
    statement.bind(6, connection.downloadedBytes);
    statement.bind(7, connection.ending);
    statement.bind(8, connection.interfaceName);
}

} // namespace

Connection ConnectionRow::toConnection() const
{
    Connection connection;
    connection.key = key();
    connection.profile = profile();
    connection.startUtc = startUtc();
    connection.endUtc = endUtc();
    connection.connectedSeconds = connectedSeconds();
    connection.uploadedBytes = uploadedBytes();
    connection.downloadedBytes = downloadedBytes();
    connection.ending = ending();
    connection.interfaceName = interfaceName();
    return connection;
}

std::int64_t ConnectionRow::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

std::string_view ConnectionRow::text(int column) const
{
    const void *const start = sqlite3_column_text(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    return start
               ? std::string_view(static_cast<const char *>(start), static_cast<std::size_t>(size))
               : std::string_view();
}

ConnectionTable::ConnectionTable(SQLite::Database &database)
    : m_database(database)
{
}

std::int64_t ConnectionTable::count()
{
    return m_database.execAndGet("SELECT count(*) FROM connection").getInt64();
}

void ConnectionTable::visitAll(const Visitor &visitor)
{
    visit({}, visitor);
}

void ConnectionTable::visit(const TimeRange &range, const Visitor &visitor)
{
    RowQuery query(m_database, "WHERE start_utc >= ? AND start_utc < ? ORDER BY start_utc, key");
    query.bind(1, range.fromUtc);
    query.bind(2, range.untilUtc);
    while (query.next())
        visitor(query.row());
}

bool ConnectionTable::visitLast(const Visitor &visitor)
{
    RowQuery query(m_database, "ORDER BY end_utc DESC, key DESC LIMIT 1");
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
    RowQuery query(m_database, "");
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
    SQLite::Statement &statement = prepared(
        m_insertion, "INSERT INTO connection (profile, start_utc, end_utc, connected_seconds,"
                     " uploaded_bytes, downloaded_bytes, ending, interface_name)"
                     " VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    bindContents(statement, connection);
    statement.exec();
    return m_database.getLastInsertRowid();
}

void ConnectionTable::update(const Connection &connection)
{
    SQLite::Statement &statement = prepared(
        m_update, "UPDATE connection SET profile = ?, start_utc = ?, end_utc = ?,"
                  " connected_seconds = ?, uploaded_bytes = ?, downloaded_bytes = ?, ending = ?,"
                  " interface_name = ? WHERE key = ?");
    bindContents(statement, connection);
    statement.bind(9, connection.key);
    statement.exec();
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

std::size_t ConnectionTable::insertMissing(const std::vector<Connection> &connections,
                                           const Store::Progress &progress)
{
    if (connections.empty())
        return 0;
    Tally tally = tallyOf(connections);
    subtractStored(m_database, connections, tally);
    std::size_t inserted = 0;
    for (std::size_t i = 0; i < connections.size(); ++i) {
        std::size_t &missing = tally.at(&connections[i]);
        if (missing > 0) {
            insert(connections[i]);
            --missing;
            ++inserted;
        }
        if (progress)
            progress(i + 1);
    }
    return inserted;
}

Store::Merged ConnectionTable::merge(const std::vector<Connection> &connections,
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
            insert(connections[i]);
            ++merged.added;
        } else if (Connection known = *pairs[i];
                   !hasSameContents(known, connections[i]) && complete(known, i)) {
            update(known);
            ++merged.completed;
        }
        if (progress)
            progress(i + 1);
    }
    return merged;
}

bool ConnectionTable::remove(std::int64_t key)
{
    SQLite::Statement &statement = prepared(m_removal, "DELETE FROM connection WHERE key = ?");
    statement.bind(1, key);
    return statement.exec() == 1;
}

SQLite::Statement &ConnectionTable::prepared(std::optional<SQLite::Statement> &statement,
                                             const char *sql)
{
    if (!statement)
        statement.emplace(m_database, sql);
    // Answers with the error of the call before, which that call has reported.
    statement->tryReset();
    return *statement;
}

} // namespace history
