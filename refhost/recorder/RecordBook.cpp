// SPDX-License-Identifier: MIT
#include "RecordBook.h"

#include "SystemClock.h"

#include <algorithm>
#include <utility>

namespace refhost
{

namespace
{

/// Of two of the same link: a mark may change while a connection lasts.
bool areSame(const OpenConnection &a, const OpenConnection &b)
{
    return a.linkMark == b.linkMark || a.startBootMilliseconds == b.startBootMilliseconds;
}

} // namespace

RecordBook::RecordBook(StatisticsStore store, std::string bootId, const SystemClock &clock,
                       StillLasts stillLasts, Listener listener)
    : m_store(std::move(store))
    , m_bootId(std::move(bootId))
    , m_clock(clock)
    , m_stillLasts(std::move(stillLasts))
    , m_listener(std::move(listener))
{
}

void RecordBook::settle(std::vector<FirstSight> sights)
{
    m_firstSights = std::move(sights);
    catchUp();
}

void RecordBook::recoverEarlierConnections()
{
    const auto open = m_store.listOpen();
    if (!open)
        return fail(open.error());
    // All are asked about before the first attempt to close one, which can take long.
    for (const OpenConnection &row : open.value()) {
        if (row.bootId == m_bootId && m_lasting.count(row.key) == 0 && m_stillLasts(row))
            m_lasting.emplace(row.key, row);
    }
    bool isComplete = true;
    for (const OpenConnection &row : open.value()) {
        if (m_lasting.count(row.key) != 0)
            continue;
        const auto key = close(row);
        if (key)
            continue;
        fail(key.error());
        // What the store does not take at all must not keep the rest from it.
        if (key.error().kind != StoreError::Kind::BadRecord)
            return;
        isComplete = false;
    }
    m_isRecovered = true;
    if (isComplete)
        succeed();
}

/// Then its connection resumes where the counters were seen last.
bool RecordBook::isLasting(const SeenLink &link) const
{
    return std::any_of(m_lasting.begin(), m_lasting.end(), [&link](const auto &entry) {
        return entry.second.interfaceIndex == link.interfaceIndex;
    });
}

/// All at once: who is interrupted finds everything as it was.
void RecordBook::recordUnwatchedTraffic()
{
    const auto seenBefore = m_store.listSeen();
    if (!seenBefore)
        return fail(seenBefore.error());
    std::vector<SeenLink> links;
    std::vector<Connection> unwatched;
    std::map<std::int64_t, LinkCounters> recorded;
    for (const FirstSight &sight : m_firstSights) {
        if (isLasting(sight.link))
            continue;
        const FirstSightVerdict verdict = judge(sight, seenBefore.value());
        links.push_back(verdict.settled);
        if (verdict.unwatched)
            unwatched.push_back(*verdict.unwatched);
        if (verdict.wasSeenInThisRun)
            recorded[sight.link.interfaceIndex] = {sight.link.uploaded, sight.link.downloaded};
    }
    const auto outcome = m_store.see(links, unwatched);
    if (!outcome)
        return fail(outcome.error());
    m_firstSights.clear();
    recorded.merge(m_recorded);
    m_recorded = std::move(recorded);
    for (const Connection &record : unwatched)
        m_listener.recovered(record);
}

bool RecordBook::see(const std::vector<SeenLink> &links)
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

Result<std::int64_t> RecordBook::close(const OpenConnection &row)
{
    const Connection connection = recovered(row);
    auto key = m_store.finish(row, connection);
    if (!key)
        return key;
    if (row.bootId == m_bootId)
        m_recorded[row.interfaceIndex] = countersAtLastUpdate(row);
    m_listener.recovered(connection);
    return key;
}

void RecordBook::save(LiveConnection &connection)
{
    // An unfinished row of the same link would be taken for this connection's.
    if (isBehind() || m_isLocked)
        return;
    auto key = connection.row().key == 0 ? begin(connection) : m_store.checkpoint(connection.row());
    // Somebody has put another file in the store's place.
    if (!key && key.error().kind == StoreError::Kind::NoSuchRecord)
        key = begin(connection);
    if (!key)
        return fail(key.error());
    succeed();
}

Result<std::int64_t> RecordBook::begin(LiveConnection &connection)
{
    leaveOutWhatIsRecorded(connection);
    auto stored = m_store.begin(connection.row());
    if (stored && !areSame(stored.value(), connection.row()))
        stored = beginApart(connection, stored.value());
    if (!stored)
        return stored.error();
    if (connection.adopt(stored.value()))
        return m_store.checkpoint(connection.row());
    return stored.value().key;
}

/// An earlier process has left another connection of the same link open.
Result<OpenConnection> RecordBook::beginApart(LiveConnection &connection,
                                              const OpenConnection &other)
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
        catchUp();
}

void RecordBook::catchUp()
{
    m_isLocked = false;
    if (!m_isRecovered)
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
        if (!key && key.error().kind != StoreError::Kind::BadRecord)
            return;
        m_listener.finished(finished.connection.finished(finished.hasFinalCounters),
                            finished.connection.id());
        m_unwritten.pop_front();
    }
}

/// One whose beginning could not be written may go on with an earlier process's row.
Result<std::int64_t> RecordBook::write(Unwritten &finished)
{
    if (finished.connection.row().key == 0) {
        auto key = begin(finished.connection);
        if (!key)
            return key;
    }
    return m_store.finish(finished.connection.row(),
                          finished.connection.finished(finished.hasFinalCounters));
}

void RecordBook::succeed()
{
    m_patience.renew();
    if (m_lastFailure.empty())
        return;
    m_lastFailure.clear();
    m_listener.succeeded();
}

void RecordBook::fail(const StoreError &error)
{
    m_isLocked |= error.kind == StoreError::Kind::Locked;
    const bool isToBeTold = m_patience.isWorthTelling(error, m_clock.bootMilliseconds());
    if (!isToBeTold || error.message == m_lastFailure)
        return;
    m_lastFailure = error.message;
    m_listener.failed(error);
}

} // namespace refhost
