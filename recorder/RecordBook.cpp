// SPDX-License-Identifier: MIT
#include "RecordBook.h"

#include "SystemClock.h"

#include <utility>

namespace recorder
{

RecordBook::RecordBook(history::Store store, UnwrittenFile file, std::string bootId,
                       const SystemClock &clock, StillLasts stillLasts, Listener listener)
    : m_store(std::move(store))
    , m_file(std::move(file))
    , m_bootId(std::move(bootId))
    , m_clock(clock)
    , m_stillLasts(std::move(stillLasts))
    , m_listener(std::move(listener))
{
}

void RecordBook::settle(std::vector<FirstSight> sights)
{
    m_firstSights.insert(m_firstSights.end(), sights.begin(), sights.end());
    writePending();
}

std::optional<Problem> RecordBook::leave(std::vector<LiveConnection> lasting)
{
    writePending();
    std::vector<Unwritten> unwritten(m_left.begin(), m_left.end());
    for (const Unwritten &finished : m_unwritten)
        unwritten.push_back(finished);
    for (LiveConnection &connection : lasting) {
        if (!save(connection))
            unwritten.push_back({connection});
    }
    return unwritten.empty() ? std::nullopt : m_file.write(std::move(unwritten));
}

bool RecordBook::see(const std::vector<history::SeenLink> &links)
{
    if (links.empty() || isBehind() || m_isLocked)
        return false;
    const auto outcome = m_store.see(links);
    if (outcome)
        succeed();
    else
        fail(outcome.error());
    return bool(outcome);
}

history::Result<std::int64_t> RecordBook::close(const history::OpenConnection &row)
{
    const history::Connection connection = recovered(row);
    auto key = m_store.finish(row, connection);
    if (!key)
        return key;
    if (row.bootId == m_bootId)
        m_recorded[row.interfaceIndex] = countersAtLastUpdate(row);
    m_listener.recovered(connection);
    return key;
}

bool RecordBook::save(LiveConnection &connection)
{
    // An unfinished row of the same link would be taken for this connection's.
    if (isBehind() || m_isLocked)
        return false;
    auto key =
        connection.row().key == 0 ? begin(connection) : m_store.checkpoint(connection.unsavedRow());
    // Somebody has put another file in the store's place.
    if (!key && key.error().kind == history::StoreError::Kind::NoSuchRecord)
        key = begin(connection);
    if (!key) {
        fail(key.error());
        return false;
    }
    connection.markSaved();
    succeed();
    return true;
}

history::Result<std::int64_t> RecordBook::begin(LiveConnection &connection)
{
    const auto isOutdated = attach(connection);
    if (!isOutdated)
        return isOutdated.error();
    return isOutdated.value() ? m_store.checkpoint(connection.row()) : connection.row().key;
}

/// Gives it its row: a new one, or the one that an earlier process has left of the same
/// connection. Whether that one lacks something that has happened since.
history::Result<bool> RecordBook::attach(LiveConnection &connection)
{
    leaveOutWhatIsRecorded(connection);
    auto stored = m_store.begin(connection.row());
    if (stored && !areSameConnection(stored.value(), connection.row()))
        stored = beginApart(connection, stored.value());
    if (!stored)
        return stored.error();
    return connection.adopt(stored.value());
}

/// An earlier process has left another connection of the same link open.
history::Result<history::OpenConnection>
RecordBook::beginApart(LiveConnection &connection, const history::OpenConnection &other)
{
    const auto key = close(other);
    if (!key)
        return key.error();
    leaveOutWhatIsRecorded(connection);
    return m_store.begin(connection.row());
}

void RecordBook::leaveOutWhatIsRecorded(LiveConnection &connection) const
{
    const auto recorded = m_recorded.find(connection.linkIndex());
    if (recorded != m_recorded.end())
        connection.leaveOut(recorded->second);
}

void RecordBook::finish(const LiveConnection &connection, bool hasFinalCounters)
{
    // A store that is locked is not waited for again with each connection.
    const bool mustWait = isBehind() || m_isLocked;
    m_unwritten.push_back({connection, hasFinalCounters});
    if (!mustWait)
        writePending();
}

void RecordBook::writePending()
{
    m_isLocked = false;
    if (!m_isFileRead)
        readFile();
    takeOver();
    if (m_left.empty() && !m_isRecovered)
        recoverEarlierConnections();
    if (m_isRecovered && !m_firstSights.empty())
        recordUnwatchedTraffic();
    if (isSettled())
        writeFinished();
}

void RecordBook::writeFinished()
{
    while (!m_unwritten.empty()) {
        Unwritten &finished = m_unwritten.front();
        const auto key = write(finished);
        // One that the store does not take at all keeps the rest waiting no longer.
        if (key)
            succeed();
        else
            fail(key.error());
        if (!key && key.error().kind != history::StoreError::Kind::BadRecord)
            return;
        m_listener.finished(finished.connection.finished(finished.hasFinalCounters),
                            finished.connection.id());
        m_unwritten.pop_front();
    }
}

/// One whose beginning could not be written may resume an earlier process's row.
history::Result<std::int64_t> RecordBook::write(Unwritten &finished)
{
    if (finished.connection.row().key == 0) {
        const auto attached = attach(finished.connection);
        if (!attached)
            return attached.error();
    }
    return m_store.finish(finished.connection.row(),
                          finished.connection.finished(finished.hasFinalCounters), finished.origin);
}

void RecordBook::succeed()
{
    m_patience.renew();
    if (m_lastFailure.empty())
        return;
    m_lastFailure.clear();
    m_listener.succeeded();
}

void RecordBook::fail(const history::StoreError &error)
{
    m_isLocked |= error.kind == history::StoreError::Kind::Locked;
    const bool isToBeTold = m_patience.isWorthTelling(error, m_clock.bootMilliseconds());
    if (!isToBeTold || error.message == m_lastFailure)
        return;
    m_lastFailure = error.message;
    m_listener.failed(historyProblem(error));
}

} // namespace recorder
