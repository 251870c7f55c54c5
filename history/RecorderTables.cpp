// SPDX-License-Identifier: MIT
#include "RecorderTables.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace history
{

namespace
{

/// What a counter showed, or nothing if that is no number for one.
std::optional<std::int64_t> counterOf(std::int64_t base, std::int64_t total)
{
    std::int64_t counter = 0;
    if (__builtin_add_overflow(base, total, &counter) || counter < 0)
        return std::nullopt;
    return counter;
}

} // namespace

std::optional<SeenLink> seenLinkOf(const OpenConnection &connection)
{
    const auto uploaded = counterOf(connection.baseUploaded, connection.uploadedBytes);
    const auto downloaded = counterOf(connection.baseDownloaded, connection.downloadedBytes);
    if (!uploaded || !downloaded)
        return std::nullopt;
    return SeenLink{
        connection.bootId, connection.interfaceIndex, connection.interfaceName, *uploaded,
        *downloaded,       connection.updatedUtc};
}

SeenLinkTable::SeenLinkTable(SQLite::Database &database)
    : m_database(database)
{
}

std::vector<SeenLink> SeenLinkTable::all()
{
    SQLite::Statement query(m_database, "SELECT boot_id, interface_index, interface_name, uploaded,"
                                        " downloaded, seen_utc FROM seen_link");
    std::vector<SeenLink> links;
    while (query.executeStep())
        links.push_back({query.getColumn(0).getString(), query.getColumn(1).getInt64(),
                         query.getColumn(2).getString(), query.getColumn(3).getInt64(),
                         query.getColumn(4).getInt64(), query.getColumn(5).getInt64()});
    return links;
}

void SeenLinkTable::replace(const SeenLink &link)
{
    SQLite::Statement statement(m_database,
                                "INSERT OR REPLACE INTO seen_link (boot_id, interface_index,"
                                " interface_name, uploaded, downloaded, seen_utc)"
                                " VALUES (?, ?, ?, ?, ?, ?)");
    statement.bind(1, link.bootId);
    statement.bind(2, link.interfaceIndex);
    statement.bind(3, link.interfaceName);
    statement.bind(4, link.uploaded);
    statement.bind(5, link.downloaded);
    statement.bind(6, link.seenUtc);
    statement.exec();
}

void SeenLinkTable::removeOthersOfTheName(const SeenLink &link)
{
    SQLite::Statement statement(m_database, "DELETE FROM seen_link WHERE interface_name = ?"
                                            " AND (boot_id <> ? OR interface_index <> ?)");
    statement.bind(1, link.interfaceName);
    statement.bind(2, link.bootId);
    statement.bind(3, link.interfaceIndex);
    statement.exec();
}

OriginTable::OriginTable(SQLite::Database &database)
    : m_database(database)
{
}

void OriginTable::insert(const std::string &origin)
{
    SQLite::Statement statement(m_database, "INSERT INTO taken_over (id) VALUES (?)");
    statement.bind(1, origin);
    statement.exec();
}

bool OriginTable::holds(const std::string &origin)
{
    SQLite::Statement query(m_database, "SELECT 1 FROM taken_over WHERE id = ?");
    query.bind(1, origin);
    return query.executeStep();
}

std::int64_t OriginTable::clear()
{
    return m_database.exec("DELETE FROM taken_over");
}

} // namespace history
