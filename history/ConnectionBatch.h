// SPDX-License-Identifier: MIT
#pragma once

#include "Connection.h"

#include <SQLiteCpp/Statement.h>

#include <array>
#include <cstddef>
#include <functional>

namespace history
{

/// Inserts connections several at a time, in their order: a statement begins, ends and looks
/// up the last key that was given once for all of them. Operations throw SQLite::Exception.
class ConnectionBatch
{
public:
    /// Puts one into the table and what belongs to it elsewhere.
    using Insertion = std::function<void(const Connection &connection)>;

    ConnectionBatch(SQLite::Database &database, Insertion insertOne);

    /// The next one, to be set; it has the values of another one.
    Connection &next() { return m_connections[m_count]; }
    /// Inserts next(), now or with those that follow.
    void add();
    /// Inserts those that are left.
    void finish();

private:
    void insertAll();

    static constexpr std::size_t size = 16;

    SQLite::Statement m_statement; ///< for as many as that
    Insertion m_insertOne;
    std::array<Connection, size> m_connections;
    std::size_t m_count = 0; ///< of those that are to be inserted
};

} // namespace history
