// SPDX-License-Identifier: MIT
#include "KeptStates.h"

#include "RecordedConnection.h"
#include "history/ConnectionFields.h"

#include <algorithm>
#include <iterator>

using namespace history;

namespace
{

/// Throws a sentence about what is not whole.
KeptStates::State stateOf(const std::vector<Connection> &list,
                          const std::vector<OpenConnection> &open)
{
    KeptStates::State state;
    for (const Connection &connection : list) {
        const std::int64_t number = connection.startUtc;
        if (!hasSameContents(connection, finishedConnection(number)))
            throw QStringLiteral("connection %1 is not what was recorded").arg(number);
        if (!state.finished.insert(number).second)
            throw QStringLiteral("connection %1 is doubled").arg(number);
    }
    for (const OpenConnection &connection : open) {
        const auto [at, isNew] = state.open.emplace(connection.startUtc, connection.uploadedBytes);
        if (!isNew)
            throw QStringLiteral("open connection %1 is doubled").arg(at->first);
    }
    return state;
}

QString textOf(const KeptStates::State &state)
{
    return QStringLiteral("%1 finished and %2 open")
        .arg(state.finished.size())
        .arg(state.open.size());
}

} // namespace

QString KeptStates::complaint(const Store &store)
{
    const auto examination = store.examine();
    if (!examination)
        return QString::fromStdString(examination.error().message);
    if (!examination.value().problems.empty())
        return QString::fromStdString(examination.value().problems.front());
    const auto list = store.list();
    const auto open = store.listOpen();
    if (!list || !open)
        return QString::fromStdString((list ? open.error() : list.error()).message);
    try {
        const State state = stateOf(list.value(), open.value());
        const auto found = std::find(m_states.begin(), m_states.end(), state);
        if (found == m_states.end())
            return QStringLiteral("%1 connections are not what was kept, %2, nor what came after")
                .arg(textOf(state), textOf(m_states.front()));
        keepOnly(static_cast<std::size_t>(std::distance(m_states.begin(), found)));
    } catch (const QString &complaint) {
        return complaint;
    }
    return {};
}

void KeptStates::keepOnly(std::size_t index)
{
    m_states = {State(m_states[index])};
}
