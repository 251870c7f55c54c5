// SPDX-License-Identifier: MIT
#include "RecordBook.h"

#include <algorithm>
#include <utility>

namespace refhost
{

RecordBook::RecordBook(StatisticsStore store, std::string bootId, StillLasts stillLasts,
                       Listener listener)
    : m_store(std::move(store))
    , m_bootId(std::move(bootId))
    , m_stillLasts(std::move(stillLasts))
    , m_listener(std::move(listener))
{
}

void RecordBook::recoverEarlierConnections()
{
    const auto open = m_store.listOpen();
    if (!open)
        return fail(open.error());
    m_isRecovered = std::all_of(open.value().begin(), open.value().end(),
                                [this](const OpenConnection &row) { return recover(row); });
}

bool RecordBook::recover(const OpenConnection &row)
{
    if (row.bootId == m_bootId && m_stillLasts(row))
        return true;
    const auto key = m_store.finish(row.key, recovered(row));
    if (!key)
        fail(key.error());
    return static_cast<bool>(key);
}

void RecordBook::save(LiveConnection &connection, const Moment &now)
{
    // An unfinished row of the same link would be taken for this connection's.
    if (isBehind())
        return;
    auto key =
        connection.row().key == 0 ? begin(connection, now) : m_store.checkpoint(connection.row());
    // Somebody has put another file in the store's place.
    if (!key && key.error().kind == StoreError::Kind::NoSuchRecord)
        key = begin(connection, now);
    if (!key)
        return fail(key.error());
    succeed();
}

Result<std::int64_t> RecordBook::begin(LiveConnection &connection, const Moment &now)
{
    const auto stored = m_store.begin(connection.row());
    if (!stored)
        return stored.error();
    connection.adopt(stored.value(), now);
    return stored.value().key;
}

void RecordBook::finish(const LiveConnection &connection, bool hasFinalCounters)
{
    // A store that is locked is not waited for again with each connection.
    const bool wasBehind = isBehind();
    m_unwritten.push_back(
        {connection.id(), connection.row().key, connection.finished(hasFinalCounters)});
    if (!wasBehind)
        catchUp();
}

void RecordBook::catchUp()
{
    if (!m_isRecovered)
        recoverEarlierConnections();
    if (m_isRecovered)
        writeFinished();
}

void RecordBook::writeFinished()
{
    while (!m_unwritten.empty()) {
        const auto &[id, openKey, connection] = m_unwritten.front();
        // One whose beginning could not be written has no row to be finished.
        const auto key =
            openKey == 0 ? m_store.add(connection) : m_store.finish(openKey, connection);
        if (!key)
            return fail(key.error());
        succeed();
        m_listener.finished(connection, id);
        m_unwritten.pop_front();
    }
}

void RecordBook::succeed()
{
    if (m_lastFailure.empty())
        return;
    m_lastFailure.clear();
    m_listener.succeeded();
}

void RecordBook::fail(const StoreError &error)
{
    if (error.message == m_lastFailure)
        return;
    m_lastFailure = error.message;
    m_listener.failed(error);
}

} // namespace refhost
