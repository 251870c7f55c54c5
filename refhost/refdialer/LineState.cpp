// SPDX-License-Identifier: MIT
#include "LineState.h"

namespace refhost
{

void LineState::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    emit changed();
}

void LineState::begin(const ConnectionState &connection)
{
    update(connection);
    emit connected();
}

void LineState::update(const ConnectionState &connection)
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

} // namespace refhost
