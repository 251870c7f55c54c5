// SPDX-License-Identifier: MIT
#pragma once

#include "Store.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace SQLite
{
class Database;
}

namespace history
{

/// The table of connections that have begun and not been finished yet. They lie
/// apart from the finished ones, so nothing that lists, counts, numbers or
/// removes those can meet them. Operations throw SQLite::Exception.
class OpenConnectionTable
{
public:
    explicit OpenConnectionTable(SQLite::Database &database);

    /// Every row by key.
    std::vector<OpenConnection> all();
    /// The row of this link, of which there is at most one.
    std::optional<OpenConnection> find(const std::string &bootId, std::int64_t interfaceIndex);

    /// Adds the connection, whatever its key, and returns the new key.
    std::int64_t insert(const OpenConnection &connection);
    /// Writes what can change while a connection lasts; whether there was such a row.
    bool update(const OpenConnection &connection);
    /// Whether there was such a row to remove.
    bool remove(const OpenConnection &connection);

private:
    SQLite::Database &m_database;
};

} // namespace history
