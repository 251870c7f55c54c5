// SPDX-License-Identifier: MIT
#pragma once

#include "Store.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace SQLite
{
class Database;
}

namespace history
{

/// What the link of this open connection showed at its last update; nothing if the
/// row's numbers cannot be a counter's.
std::optional<SeenLink> seenLinkOf(const OpenConnection &connection);

/// The table of links' counters as a recorder has seen them last. Operations throw
/// SQLite::Exception.
class SeenLinkTable
{
public:
    explicit SeenLinkTable(SQLite::Database &database);

    std::vector<SeenLink> all();
    /// In the place of what was known of the same link of the same run of the system.
    void replace(const SeenLink &link);
    /// Forgets other links of the same name, which are not there any more.
    void removeOthersOfTheName(const SeenLink &link);

private:
    SQLite::Database &m_database;
};

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
