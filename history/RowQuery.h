// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionFields.h"

#include <SQLiteCpp/Statement.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

struct sqlite3;
struct sqlite3_stmt;

namespace SQLite
{
class Database;
}

namespace history
{

/// One row as it is being read; its texts end with the row's turn.
class Row
{
public:
    explicit Row(sqlite3_stmt *statement)
        : m_statement(statement)
    {
    }

    std::int64_t integer(int column) const;
    std::optional<std::int64_t> integerIfAny(int column) const;
    std::string_view text(int column) const;

    /// The value of a field in that column.
    template <typename AnyField>
    auto value(const AnyField & /*field*/, int column) const
    {
        if constexpr (std::is_same_v<typename AnyField::Value, std::string>)
            return text(column);
        else
            return integer(column);
    }

private:
    sqlite3_stmt *m_statement;
};

/// A query for whole rows. It calls SQLite itself: the wrapper's columns share the
/// ownership of their statement, which costs more than reading the value. Operations
/// throw SQLite::Exception.
class RowQuery
{
public:
    RowQuery(const SQLite::Database &database, const std::string &sql);
    ~RowQuery();
    RowQuery(const RowQuery &) = delete;
    RowQuery &operator=(const RowQuery &) = delete;

    void bind(int index, std::int64_t value);
    /// The text is not copied.
    void bind(int index, const std::string &value);

    /// Goes to the next row; false if there is none.
    bool next();
    /// Goes before the first row, for other parameters.
    void restart();
    Row row() const { return Row(m_statement); }

private:
    void check(int code, int expected) const;

    sqlite3 *m_database;
    sqlite3_stmt *m_statement = nullptr;
};

/// A statement for many calls, compiled at the first one and ready to be bound at each.
class PreparedStatement
{
public:
    PreparedStatement(SQLite::Database &database, std::string sql)
        : m_database(database)
        , m_sql(std::move(sql))
    {
    }

    SQLite::Statement &ready();

private:
    SQLite::Database &m_database;
    std::string m_sql;
    std::optional<SQLite::Statement> m_statement;
};

/// "first, second, third": what `textOf` makes of each field.
template <typename Fields, typename TextOf>
std::string joined(const Fields &fields, const char *separator, TextOf textOf)
{
    std::string text;
    forEachField(fields, [&](const auto &field) {
        text += (text.empty() ? "" : separator) + std::string(textOf(field));
    });
    return text;
}

template <typename Fields>
std::string columnsOf(const Fields &fields)
{
    return joined(fields, ", ", [](const auto &field) { return field.column; });
}

/// "first = ? AND second = ?", with this separator.
template <typename Fields>
std::string equationsOf(const Fields &fields, const char *separator)
{
    return joined(fields, separator,
                  [](const auto &field) { return std::string(field.column) + " = ?"; });
}

template <typename Fields>
std::string selectionOf(const Fields &fields, const char *table)
{
    return "SELECT key, " + columnsOf(fields) + " FROM " + table + ' ';
}

/// For so many rows.
template <typename Fields>
std::string insertionOf(const Fields &fields, const char *table, std::size_t rows = 1)
{
    const std::string row = '(' + joined(fields, ", ", [](const auto &) { return "?"; }) + ')';
    std::string sql =
        std::string("INSERT INTO ") + table + " (" + columnsOf(fields) + ") VALUES " + row;
    for (std::size_t i = 1; i < rows; ++i)
        sql += ", " + row;
    return sql;
}

inline void bindValue(SQLite::Statement &statement, int parameter, std::int64_t value)
{
    statement.bind(parameter, value);
}

inline void bindValue(SQLite::Statement &statement, int parameter, const std::string &text)
{
    statement.bindNoCopy(parameter, text);
}

/// Binds the values to the parameters from the first on; returns the one behind them. The
/// record has to stay as it is until the statement has run.
template <typename Record, typename Fields>
int bindFields(SQLite::Statement &statement, int first, const Record &record, const Fields &fields)
{
    forEachField(fields,
                 [&](const auto &field) { bindValue(statement, first++, record.*field.member); });
    return first;
}

/// Takes over what selectionOf() the same fields has given.
template <typename Record, typename Fields>
void readInto(Record &record, const Row &row, const Fields &fields)
{
    record.key = row.integer(0);
    int column = 0;
    forEachField(fields,
                 [&](const auto &field) { record.*field.member = row.value(field, ++column); });
}

template <typename Record, typename Fields>
Record recordIn(const Row &row, const Fields &fields)
{
    Record record;
    readInto(record, row, fields);
    return record;
}

} // namespace history
