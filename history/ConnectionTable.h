// SPDX-License-Identifier: MIT
#pragma once

#include "Store.h"

#include <SQLiteCpp/Statement.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

struct sqlite3_stmt;

namespace SQLite
{
class Database;
}

namespace history
{

/// One row of the table as it is being read; its texts end with the row's turn.
class ConnectionRow
{
public:
    explicit ConnectionRow(sqlite3_stmt *statement)
        : m_statement(statement)
    {
    }

    std::int64_t key() const { return integer(0); }
    std::string_view profile() const { return text(1); }
    std::int64_t startUtc() const { return integer(2); }
    std::int64_t endUtc() const { return integer(3); }
    std::int64_t connectedSeconds() const { return integer(4); }
    std::int64_t uploadedBytes() const { return integer(5); }
    std::int64_t downloadedBytes() const { return integer(6); }
    std::string_view ending() const { return text(7); }
    std::string_view interfaceName() const { return text(8); }

    Connection toConnection() const;

private:
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;

    sqlite3_stmt *m_statement;
};

/// The table of finished connections in an open database. Operations throw
/// SQLite::Exception.
class ConnectionTable
{
public:
    explicit ConnectionTable(SQLite::Database &database);

    using Visitor = std::function<void(const ConnectionRow &)>;

    std::int64_t count();
    /// Every row by start time, then by key.
    void visitAll(const Visitor &visitor);
    /// Those of them that start in `range`.
    void visit(const TimeRange &range, const Visitor &visitor);
    /// The row with the newest end, the one with the highest key among equals;
    /// false if there is none.
    bool visitLast(const Visitor &visitor);

    /// The sum, modulo 2^64, of all rows' fingerprints. They are read only if anything
    /// has been written to the file since the last time.
    std::uint64_t fingerprint();

    /// Adds the connection, whatever its key, and returns the new key.
    std::int64_t insert(const Connection &connection);
    /// Whether there is a connection of this interface that began at that time.
    bool holds(const std::string &interfaceName, std::int64_t startUtc);
    /// Inserts those of `connections` that are not there yet; see
    /// Store::addMissing.
    std::size_t insertMissing(const std::vector<Connection> &connections,
                              const Store::Progress &progress);
    /// Inserts and completes what a log tells; see Store::merge.
    Store::Merged merge(const std::vector<Connection> &connections,
                        const Store::Completion &complete, const Store::Progress &progress);
    /// Whether there was such a row to remove.
    bool remove(std::int64_t key);

private:
    /// What SQLite counts of the writes of others and of this database itself.
    using Writes = std::pair<std::int64_t, std::int64_t>;

    Writes writes();
    void update(const Connection &connection);
    SQLite::Statement &prepared(std::optional<SQLite::Statement> &statement, const char *sql);

    SQLite::Database &m_database;
    std::optional<SQLite::Statement> m_insertion;
    std::optional<SQLite::Statement> m_update;
    std::optional<SQLite::Statement> m_removal;
    std::uint64_t m_fingerprint = 0;
    std::optional<Writes> m_fingerprintWrites; ///< before which it was made
};

} // namespace history
