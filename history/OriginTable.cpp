// SPDX-License-Identifier: MIT
#include "OriginTable.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace history
{

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
