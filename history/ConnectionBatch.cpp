// SPDX-License-Identifier: MIT
#include "ConnectionBatch.h"

#include "ConnectionTable.h"

#include <utility>

namespace history
{

ConnectionBatch::ConnectionBatch(SQLite::Database &database, Insertion insertOne)
    : m_statement(database, insertionOf(connectionFields, ConnectionTable::name, size))
    , m_insertOne(std::move(insertOne))
{
}

void ConnectionBatch::add()
{
    if (const Connection &added = next(); !added.hours.empty()) {
        finish();
        m_insertOne(added);
    } else if (++m_count == size) {
        insertAll();
    }
}

void ConnectionBatch::finish()
{
    for (std::size_t i = 0; i < m_count; ++i)
        m_insertOne(m_connections[i]);
    m_count = 0;
}

void ConnectionBatch::insertAll()
{
    m_statement.reset();
    int parameter = 1;
    for (const Connection &connection : m_connections)
        parameter = bindFields(m_statement, parameter, connection, connectionFields);
    m_statement.exec();
    m_count = 0;
}

} // namespace history
