// SPDX-License-Identifier: MIT
#pragma once

#include "RowQuery.h"
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

/// The hours of the connections in one table, finished or open ones. Operations throw
/// SQLite::Exception.
class HourTable
{
public:
    /// For the connections in the table of this name; their hours are in the one that has
    /// "_hour" behind it.
    HourTable(SQLite::Database &database, std::string connections);

    /// Of one connection, by hour.
    std::vector<HourlyBytes> of(std::int64_t key);
    /// The same in a list that has room already.
    void readInto(std::vector<HourlyBytes> &hours, std::int64_t key);
    /// In the place of what is known of these hours.
    void replace(std::int64_t key, const std::vector<HourlyBytes> &hours);
    void remove(std::int64_t key);
    /// Makes the hours of `from` in the other table those of `to` here.
    void takeOver(HourTable &other, std::int64_t from, std::int64_t to);
    /// Whether the connection has none, or they add up to its byte counts.
    bool addUp(std::int64_t key);

    /// What selects ConnectionHours of the range that parameters 1 and 2 name, by their
    /// members; the connections in this table are open or not.
    std::string selection(bool isOpen) const;

private:
    SQLite::Database &m_database;
    std::string m_connections;
    std::string m_hours;
    std::optional<RowQuery> m_selection; ///< of one connection, once it is needed
    PreparedStatement m_replacement;
    PreparedStatement m_removal;
    PreparedStatement m_comparison;
};

/// Shows the visitor the hours of what HourTable::selection() selects, one after the other in the
/// same place; returns how many there are.
std::size_t visitHoursOf(RowQuery &query, const TimeRange &range,
                         const Store::HourVisitor &visitor);

} // namespace history
