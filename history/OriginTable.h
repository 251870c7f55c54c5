// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace SQLite
{
class Database;
}

namespace history
{

/// The table of what has been taken over from beside the store, by names of the
/// caller's. Operations throw SQLite::Exception.
class OriginTable
{
public:
    explicit OriginTable(SQLite::Database &database);

    void insert(const std::string &origin);
    bool holds(const std::string &origin);
    /// Returns how many there were.
    std::int64_t clear();

private:
    SQLite::Database &m_database;
};

} // namespace history
