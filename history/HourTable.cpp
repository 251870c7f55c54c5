// SPDX-License-Identifier: MIT
#include "HourTable.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

namespace history
{

namespace
{

constexpr const char *values = "hour_utc, is_roaming, uploaded_bytes, downloaded_bytes";

/// Its texts stay where they are if there is room for the row's: a loop over many rows asks for
/// memory once.
void read(const Row &row, ConnectionHour &hour)
{
    hour.key = row.integer(0);
    hour.isOpen = row.integer(1) != 0;
    hour.profile = row.text(2);
    hour.operatorName = row.text(3);
    hour.operatorCode = row.text(4);
    hour.sim = row.text(5);
    hour.utc = row.integer(6);
    hour.isRoaming = row.integer(7) != 0;
    hour.uploadedBytes = row.integer(8);
    hour.downloadedBytes = row.integer(9);
    hour.isKnown = row.integer(10) != 0;
}

} // namespace

HourTable::HourTable(SQLite::Database &database, std::string connections)
    : m_database(database)
    , m_connections(std::move(connections))
    , m_hours(m_connections + "_hour")
    , m_replacement(database, "INSERT OR REPLACE INTO " + m_hours + " (connection, " + values +
                                  ") VALUES (?, ?, ?, ?, ?)")
    , m_removal(database, "DELETE FROM " + m_hours + " WHERE connection = ?")
    // A sum that does not fit is an error of SQLite's; total() would be a float.
    , m_comparison(database, "SELECT count(*) = 0 OR (sum(h.uploaded_bytes) = c.uploaded_bytes"
                             " AND sum(h.downloaded_bytes) = c.downloaded_bytes) FROM " +
                                 m_hours + " h JOIN " + m_connections +
                                 " c ON c.key = h.connection WHERE h.connection = ?")
{
}

std::vector<HourlyBytes> HourTable::of(std::int64_t key)
{
    std::vector<HourlyBytes> hours;
    readInto(hours, key);
    return hours;
}

void HourTable::readInto(std::vector<HourlyBytes> &hours, std::int64_t key)
{
    hours.clear();
    if (!m_selection)
        m_selection.emplace(m_database, std::string("SELECT ") + values + " FROM " + m_hours +
                                            " WHERE connection = ? ORDER BY hour_utc, is_roaming");
    m_selection->restart();
    m_selection->bind(1, key);
    while (m_selection->next()) {
        const Row row = m_selection->row();
        hours.push_back({row.integer(0), row.integer(1) != 0, row.integer(2), row.integer(3)});
    }
    m_selection->restart(); // one that is being read holds its transaction open
}

void HourTable::replace(std::int64_t key, const std::vector<HourlyBytes> &hours)
{
    for (const HourlyBytes &each : hours) {
        SQLite::Statement &statement = m_replacement.ready();
        statement.bind(1, key);
        statement.bind(2, each.hourUtc);
        statement.bind(3, each.isRoaming ? 1 : 0);
        statement.bind(4, each.uploadedBytes);
        statement.bind(5, each.downloadedBytes);
        statement.exec();
    }
}

void HourTable::remove(std::int64_t key)
{
    SQLite::Statement &statement = m_removal.ready();
    statement.bind(1, key);
    statement.exec();
}

void HourTable::takeOver(HourTable &other, std::int64_t from, std::int64_t to)
{
    SQLite::Statement statement(m_database, "INSERT INTO " + m_hours + " (connection, " + values +
                                                ") SELECT ?, " + values + " FROM " + other.m_hours +
                                                " WHERE connection = ?");
    statement.bind(1, to);
    statement.bind(2, from);
    statement.exec();
    other.remove(from);
}

bool HourTable::addUp(std::int64_t key)
{
    SQLite::Statement &statement = m_comparison.ready();
    statement.bind(1, key);
    statement.executeStep();
    const bool isRight = statement.getColumn(0).getInt() != 0;
    statement.tryReset(); // one that is being read holds its transaction open
    return isRight;
}

std::string HourTable::selection(bool isOpen) const
{
    const std::string whose = std::string("SELECT c.key, ") + (isOpen ? "1" : "0") +
                              ", profile, operator_name, operator_code, sim, ";
    return whose + "hour_utc AS utc, is_roaming, h.uploaded_bytes, h.downloaded_bytes, 1 FROM " +
           m_hours + " h JOIN " + m_connections +
           " c ON c.key = h.connection WHERE hour_utc >= ?1 AND hour_utc < ?2 UNION ALL " + whose +
           "start_utc, 0, uploaded_bytes, downloaded_bytes, 0 FROM " + m_connections +
           " c WHERE start_utc >= ?1 AND start_utc < ?2 AND NOT EXISTS (SELECT 1 FROM " + m_hours +
           " WHERE connection = c.key)";
}

std::size_t visitHoursOf(RowQuery &query, const TimeRange &range, const Store::HourVisitor &visitor)
{
    query.bind(1, range.fromUtc);
    query.bind(2, range.untilUtc);
    std::size_t count = 0;
    for (ConnectionHour hour; query.next(); ++count) {
        read(query.row(), hour);
        visitor(hour);
    }
    return count;
}

} // namespace history
