// SPDX-License-Identifier: MIT
#include "OpenConnectionTable.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace history
{

namespace
{

constexpr const char *selection =
    "SELECT key, boot_id, interface_index, interface_name, profile, start_utc, start_boot_ms,"
    " base_uploaded, base_downloaded, uploaded_bytes, downloaded_bytes, updated_utc,"
    " connected_seconds, ending, link_mark FROM open_connection ";

/// Another file in the store's place may have a row of the same key, but not of the
/// same connection.
constexpr const char *sameConnection =
    " WHERE key = ? AND boot_id = ? AND interface_index = ? AND start_boot_ms = ?";

OpenConnection connectionIn(SQLite::Statement &row)
{
    OpenConnection connection;
    connection.key = row.getColumn(0).getInt64();
    connection.bootId = row.getColumn(1).getString();
    connection.interfaceIndex = row.getColumn(2).getInt64();
    connection.interfaceName = row.getColumn(3).getString();
    connection.profile = row.getColumn(4).getString();
    connection.startUtc = row.getColumn(5).getInt64();
    connection.startBootMilliseconds = row.getColumn(6).getInt64();
    connection.baseUploaded = row.getColumn(7).getInt64();
    connection.baseDownloaded = row.getColumn(8).getInt64();
    connection.uploadedBytes = row.getColumn(9).getInt64();
    connection.downloadedBytes = row.getColumn(10).getInt64();
    connection.updatedUtc = row.getColumn(11).getInt64();
    connection.connectedSeconds = row.getColumn(12).getInt64();
    connection.ending = row.getColumn(13).getString();
    connection.linkMark = row.getColumn(14).getString();
    return connection;
}

/// Binds what can change while a connection lasts to parameters 1 to 10.
void bindProgress(SQLite::Statement &statement, const OpenConnection &connection)
{
    statement.bind(1, connection.interfaceName);
    statement.bind(2, connection.profile);
    statement.bind(3, connection.baseUploaded);
    statement.bind(4, connection.baseDownloaded);
    statement.bind(5, connection.uploadedBytes);
    statement.bind(6, connection.downloadedBytes);
    statement.bind(7, connection.updatedUtc);
    statement.bind(8, connection.connectedSeconds);
    statement.bind(9, connection.ending);
    statement.bind(10, connection.linkMark);
}

/// Binds what sameConnection compares, from this parameter on.
void bindIdentity(SQLite::Statement &statement, int first, const OpenConnection &connection)
{
    statement.bind(first, connection.key);
    statement.bind(first + 1, connection.bootId);
    statement.bind(first + 2, connection.interfaceIndex);
    statement.bind(first + 3, connection.startBootMilliseconds);
}

} // namespace

OpenConnectionTable::OpenConnectionTable(SQLite::Database &database)
    : m_database(database)
{
}

std::vector<OpenConnection> OpenConnectionTable::all()
{
    SQLite::Statement query(m_database, std::string(selection) + "ORDER BY key");
    std::vector<OpenConnection> connections;
    while (query.executeStep())
        connections.push_back(connectionIn(query));
    return connections;
}

std::optional<OpenConnection> OpenConnectionTable::find(const std::string &bootId,
                                                        std::int64_t interfaceIndex)
{
    SQLite::Statement query(m_database,
                            std::string(selection) + "WHERE boot_id = ? AND interface_index = ?");
    query.bind(1, bootId);
    query.bind(2, interfaceIndex);
    if (!query.executeStep())
        return std::nullopt;
    return connectionIn(query);
}

std::int64_t OpenConnectionTable::insert(const OpenConnection &connection)
{
    SQLite::Statement statement(
        m_database, "INSERT INTO open_connection (interface_name, profile, base_uploaded,"
                    " base_downloaded, uploaded_bytes, downloaded_bytes, updated_utc,"
                    " connected_seconds, ending, link_mark, boot_id, interface_index, start_utc,"
                    " start_boot_ms) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    bindProgress(statement, connection);
    statement.bind(11, connection.bootId);
    statement.bind(12, connection.interfaceIndex);
    statement.bind(13, connection.startUtc);
    statement.bind(14, connection.startBootMilliseconds);
    statement.exec();
    return m_database.getLastInsertRowid();
}

bool OpenConnectionTable::update(const OpenConnection &connection)
{
    SQLite::Statement statement(
        m_database, "UPDATE open_connection SET interface_name = ?, profile = ?,"
                    " base_uploaded = ?, base_downloaded = ?, uploaded_bytes = ?,"
                    " downloaded_bytes = ?, updated_utc = ?, connected_seconds = ?, ending = ?,"
                    " link_mark = ?" +
                        std::string(sameConnection));
    bindProgress(statement, connection);
    bindIdentity(statement, 11, connection);
    return statement.exec() == 1;
}

bool OpenConnectionTable::remove(const OpenConnection &connection)
{
    SQLite::Statement statement(m_database,
                                "DELETE FROM open_connection" + std::string(sameConnection));
    bindIdentity(statement, 1, connection);
    return statement.exec() == 1;
}

} // namespace history
