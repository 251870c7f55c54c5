// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionSelection.h"

namespace SQLite
{
class Database;
}

namespace history
{

class HourTable;

/// Goes over the finished connections of a selection, however many they are, holding one
/// at a time. Operations throw SQLite::Exception and what the functions given throw.
class ConnectionWalk
{
public:
    ConnectionWalk(SQLite::Database &database, HourTable &hours,
                   const ConnectionSelection &selection);

    /// By start time, then by key; returns how many there were.
    std::size_t visit(const ConnectionVisitor &visitor);

private:
    bool isSelected(const Connection &connection) const;
    bool findFirst();

    SQLite::Database &m_database;
    HourTable &m_hours;
    const ConnectionSelection &m_selection;
    std::int64_t m_firstUtc; ///< no earlier one is to be shown
    std::int64_t m_firstKey; ///< nor a lower one that starts then
    Connection m_connection;
};

} // namespace history
