// SPDX-License-Identifier: MIT
#include "OpenConnectionTable.h"

#include "RowQuery.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace history
{

namespace
{

constexpr const char *openTableName = "open_connection";

std::string selection()
{
    return selectionOf(openConnectionFields, openTableName);
}

OpenConnection connectionIn(const Row &row)
{
    return recordIn<OpenConnection>(row, openConnectionFields);
}

/// Another file in the store's place may have a row of the same key, but not of the
/// same connection.
std::string sameConnection()
{
    return " WHERE key = ? AND " + equationsOf(openIdentityFields, " AND ");
}

/// Binds what sameConnection() compares, from this parameter on.
void bindIdentity(SQLite::Statement &statement, int first, const OpenConnection &connection)
{
    statement.bind(first, connection.key);
    bindFields(statement, first + 1, connection, openIdentityFields);
}

} // namespace

OpenConnectionTable::OpenConnectionTable(SQLite::Database &database)
    : m_database(database)
{
}

std::vector<OpenConnection> OpenConnectionTable::all()
{
    RowQuery query(m_database, selection() + "ORDER BY key");
    std::vector<OpenConnection> connections;
    while (query.next())
        connections.push_back(connectionIn(query.row()));
    return connections;
}

std::optional<OpenConnection> OpenConnectionTable::find(const std::string &bootId,
                                                        std::int64_t interfaceIndex)
{
    RowQuery query(m_database, selection() + "WHERE boot_id = ? AND interface_index = ?");
    query.bind(1, bootId);
    query.bind(2, interfaceIndex);
    if (!query.next())
        return std::nullopt;
    return connectionIn(query.row());
}

std::int64_t OpenConnectionTable::insert(const OpenConnection &connection)
{
    SQLite::Statement statement(m_database, insertionOf(openConnectionFields, openTableName));
    bindFields(statement, 1, connection, openConnectionFields);
    statement.exec();
    return m_database.getLastInsertRowid();
}

bool OpenConnectionTable::update(const OpenConnection &connection)
{
    SQLite::Statement statement(m_database, std::string("UPDATE ") + openTableName + " SET " +
                                                equationsOf(openProgressFields, ", ") +
                                                sameConnection());
    const int behind = bindFields(statement, 1, connection, openProgressFields);
    bindIdentity(statement, behind, connection);
    return statement.exec() == 1;
}

bool OpenConnectionTable::remove(const OpenConnection &connection)
{
    SQLite::Statement statement(m_database,
                                std::string("DELETE FROM ") + openTableName + sameConnection());
    bindIdentity(statement, 1, connection);
    return statement.exec() == 1;
}

} // namespace history
