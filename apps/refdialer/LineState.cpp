// SPDX-License-Identifier: MIT
#include "LineState.h"

namespace refdialer
{

void LineState::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    emit changed();
}

void LineState::begin(const recorder::ConnectionState &connection)
{
    update(connection);
    emit connected();
}

void LineState::update(const recorder::ConnectionState &connection)
{
    m_connections.insert(connection.id, connection);
    emit changed();
}

void LineState::end(qint64 id)
{
    m_connections.remove(id);
    emit changed();
    emit disconnected();
}

void LineState::setProblem(const QString &problem)
{
    m_problem = problem;
    emit changed();
}

} // namespace refdialer
