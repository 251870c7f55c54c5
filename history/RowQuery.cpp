// SPDX-License-Identifier: MIT
#include "RowQuery.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

namespace history
{

std::int64_t Row::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

std::optional<std::int64_t> Row::integerIfAny(int column) const
{
    if (sqlite3_column_type(m_statement, column) == SQLITE_NULL)
        return std::nullopt;
    return integer(column);
}

std::string_view Row::text(int column) const
{
    // In UTF-8, which a text has here already, the size may be asked for first; most
    // connections have some empty texts.
    const int size = sqlite3_column_bytes(m_statement, column);
    if (size == 0)
        return {};
    const void *const start = sqlite3_column_text(m_statement, column);
    return start
               ? std::string_view(static_cast<const char *>(start), static_cast<std::size_t>(size))
               : std::string_view();
}

RowQuery::RowQuery(const SQLite::Database &database, const std::string &sql)
    : m_database(database.getHandle())
{
    check(sqlite3_prepare_v2(m_database, sql.c_str(), -1, &m_statement, nullptr), SQLITE_OK);
}

RowQuery::~RowQuery()
{
    sqlite3_finalize(m_statement);
}

void RowQuery::bind(int index, std::int64_t value)
{
    check(sqlite3_bind_int64(m_statement, index, value), SQLITE_OK);
}

void RowQuery::bind(int index, const std::string &value)
{
    check(sqlite3_bind_text64(m_statement, index, value.data(), value.size(), SQLITE_STATIC,
                              SQLITE_UTF8),
          SQLITE_OK);
}

bool RowQuery::next()
{
    const int code = sqlite3_step(m_statement);
    if (code != SQLITE_ROW)
        check(code, SQLITE_DONE);
    return code == SQLITE_ROW;
}

void RowQuery::restart()
{
    // Answers with the error of the last step, which that has thrown.
    sqlite3_reset(m_statement);
}

void RowQuery::check(int code, int expected) const
{
    if (code != expected)
        throw SQLite::Exception(m_database, code);
}

SQLite::Statement &PreparedStatement::ready()
{
    if (!m_statement)
        m_statement.emplace(m_database, m_sql);
    // Answers with the error of the call before, which that call has reported.
    m_statement->tryReset();
    return *m_statement;
}

} // namespace history
