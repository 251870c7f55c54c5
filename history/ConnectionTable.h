// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionBatch.h"
#include "RowQuery.h"
#include "Store.h"

#include <SQLiteCpp/Statement.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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
    explicit ConnectionRow(const Row &row)
        : m_row(row)
    {
    }

    std::int64_t key() const { return m_row.integer(0); }

    /// The value of this member of Connection, a text as a std::string_view.
    template <auto Member>
    auto get() const
    {
        constexpr auto place = placeOf<Member>();
        return m_row.value(std::get<place>(connectionFields), static_cast<int>(place) + 1);
    }

    /// Calls `visit` with the value of each field, in order.
    template <typename Visit>
    void forEachValue(Visit visit) const
    {
        int column = 0;
        forEachField(connectionFields,
                     [&](const auto &field) { visit(m_row.value(field, ++column)); });
    }

    Connection toConnection() const { return recordIn<Connection>(m_row, connectionFields); }
    /// The same in what has room for texts already; the hours stay.
    void readInto(Connection &connection) const
    {
        history::readInto(connection, m_row, connectionFields);
    }

private:
    /// In connectionFields; a member that is not there does not compile.
    template <auto Member>
    static constexpr std::size_t placeOf()
    {
        std::size_t place = 0;
        std::size_t found = std::tuple_size_v<decltype(connectionFields)>;
        forEachField(connectionFields, [&](const auto &field) {
            if constexpr (std::is_same_v<decltype(field.member), decltype(Member)>) {
                if (field.member == Member)
                    found = place;
            }
            ++place;
        });
        return found;
    }

    Row m_row;
};

/// The rows of finished connections that meet a condition, which may say their order.
class ConnectionQuery : public RowQuery
{
public:
    ConnectionQuery(const SQLite::Database &database, const std::string &condition);

    ConnectionRow row() const { return ConnectionRow(RowQuery::row()); }
};

/// The table of finished connections in an open database. Operations throw
/// SQLite::Exception.
class ConnectionTable
{
public:
    static constexpr const char *name = "connection";

    explicit ConnectionTable(SQLite::Database &database);

    using Visitor = std::function<void(const ConnectionRow &)>;

    /// Puts a connection that is missing into this table and what belongs to it elsewhere.
    using Insertion = ConnectionBatch::Insertion;
    /// Puts one into the place of the one with its key, under a new key.
    using Replacement = std::function<void(const Connection &connection)>;

    std::int64_t count();
    /// The rows that start in `range` by start time, then by key.
    void visit(const TimeRange &range, const Visitor &visitor);
    std::vector<Connection> list(const TimeRange &range);
    /// The row with the newest end, the one with the highest key among equals;
    /// false if there is none.
    bool visitLast(const Visitor &visitor);

    /// The sum, modulo 2^64, of all rows' fingerprints. They are read only if anything
    /// has been written to the file since the last time.
    std::uint64_t fingerprint();

    /// What SQLite counts of the writes of others and of this database itself.
    using Writes = std::pair<std::int64_t, std::int64_t>;
    Writes writes();

    /// Adds the connection, whatever its key, and returns the new key.
    std::int64_t insert(const Connection &connection);
    /// Whether there is a connection of this interface that began at that time.
    bool holds(const std::string &interfaceName, std::int64_t startUtc);
    /// Inserts those of `connections` that are not there yet; see
    /// Store::addMissing.
    std::size_t insertMissing(ConnectionSource &connections, const Insertion &insertOne,
                              const Store::Progress &progress);
    /// Inserts and completes what a log tells; see Store::merge.
    Store::Merged merge(const std::vector<Connection> &connections, const Insertion &insertOne,
                        const Replacement &replaceOne, const Store::Completion &complete,
                        const Store::Progress &progress);
    /// Whether there was such a row to remove.
    bool remove(std::int64_t key);

private:
    SQLite::Database &m_database;
    PreparedStatement m_insertion;
    PreparedStatement m_removal;
    std::uint64_t m_fingerprint = 0;
    std::optional<Writes> m_fingerprintWrites; ///< before which it was made
};

} // namespace history
