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
    m_connections.insert(connection.interfaceName, connection);
    emit changed();
}

void LineState::end(const Connection &connection)
{
    m_connections.remove(QString::fromStdString(connection.interfaceName));
    m_problem.clear();
    emit changed();
    emit disconnected();
}

void LineState::setProblem(const QString &problem)
{
    m_problem = problem;
    emit changed();
}

} // namespace refhost
