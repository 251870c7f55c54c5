// SPDX-License-Identifier: MIT
#include "LineState.h"

#include <algorithm>
#include <utility>

namespace refdialer
{

using recorder::ConnectionState;

namespace
{

/// Whether there is one among `connections` that is not among the former ones.
bool hasOneBeyond(const QList<ConnectionState> &former, const QList<ConnectionState> &connections)
{
    return std::any_of(connections.begin(), connections.end(), [&former](const auto &connection) {
        return std::none_of(former.begin(), former.end(),
                            [&connection](const auto &other) { return other.id == connection.id; });
    });
}

} // namespace

QList<ConnectionState> LineState::connections() const
{
    return isFollowing() ? m_followed.connections : m_connections.values();
}

void LineState::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    if (!isWatched)
        m_connections.clear();
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

void LineState::follow(const recorder::RecorderState &recorder)
{
    const QList<ConnectionState> former = std::exchange(m_followed, recorder).connections;
    emit changed();
    if (isFollowing() && hasOneBeyond(former, recorder.connections))
        emit connected();
}

/// This program's own recorder tells of its own.
void LineState::endFollowed()
{
    if (isFollowing())
        emit disconnected();
}

} // namespace refdialer
