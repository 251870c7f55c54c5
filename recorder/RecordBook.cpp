// SPDX-License-Identifier: MIT
#include "RecordBook.h"

#include "SystemClock.h"

#include <algorithm>
#include <utility>

namespace recorder
{

namespace
{

/// Of two of the same link: a mark may change while a connection lasts.
bool areSame(const history::OpenConnection &a, const history::OpenConnection &b)
{
    return a.linkMark == b.linkMark || a.startBootMilliseconds == b.startBootMilliseconds;
}

/// Its link as its own process has found it.
FirstSight firstSightOf(const LiveConnection &connection)
{
    const LiveConnection::State state = connection.state();
    const history::OpenConnection &row = state.row;
    const LinkCounters &shown = state.countersAtFirst;
    return {{row.bootId, row.interfaceIndex, row.interfaceName, shown.uploaded, shown.downloaded,
             row.startUtc},
            {shown.uploaded - state.totalsAtFirst.uploaded,
             shown.downloaded - state.totalsAtFirst.downloaded},
            row.startUtc - row.startBootMilliseconds / 1000,
            row.profile};
}

} // namespace

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
    m_firstSights = std::move(sights);
    catchUp();
}

void RecordBook::readFile()
{
    m_isFileRead = true;
    const UnwrittenFile::Contents left = m_file.read();
    m_left = std::deque<Unwritten>(left.connections.begin(), left.connections.end());
    for (const history::StoreError &refusal : left.refusals)
        m_listener.failed(refusal);
}

/// The file goes when all of it is in the store. Until then the store knows what it has
/// of it already.
void RecordBook::takeOver()
{
    if (m_left.empty())
        return;
    while (!m_left.empty()) {
        const auto key = takeOver(m_left.front());
        if (!key)
            fail(key.error());
        // What the store does not take at all must not keep the rest from it.
        if (!key && key.error().kind != history::StoreError::Kind::BadRecord)
            return;
        m_left.pop_front();
    }
    if (m_file.remove())
        m_store.forgetOrigins();
}

history::Result<std::int64_t> RecordBook::takeOver(Unwritten &left)
{
    const auto wasTakenOver = m_store.wasTakenOver(left.origin);
    if (!wasTakenOver)
        return wasTakenOver.error();
    if (wasTakenOver.value())
        return left.connection.row().key;
    const auto settled = settleBefore(left);
    if (!settled)
        return settled.error();
    if (left.connection.hasEnded()) {
        auto key = write(left);
        if (key)
            m_listener.recovered(left.connection.finished(left.hasFinalCounters));
        return key;
    }
    if (left.connection.row().key == 0) {
        const auto attached = attach(left.connection);
        if (!attached)
            return attached.error();
    }
    auto key = m_store.checkpoint(left.connection.row(), left.origin);
    if (key || key.error().kind != history::StoreError::Kind::NoSuchRecord)
        return key;
    const auto attached = attach(left.connection);
    return attached ? m_store.checkpoint(left.connection.row(), left.origin) : attached.error();
}

/// What was left may be of a process that could not settle what others had left before:
/// that comes first, as it would have then, once for each link of that process.
history::Result<std::size_t> RecordBook::settleBefore(Unwritten &left)
{
    const history::OpenConnection &row = left.connection.row();
    const std::tuple link(left.run, row.bootId, row.interfaceIndex);
    if (row.key != 0 || m_settledLinks.count(link) != 0)
        return std::size_t{0};
    auto settled = settleBefore(left.connection);
    if (settled)
        m_settledLinks.insert(link);
    return settled;
}

history::Result<std::size_t> RecordBook::settleBefore(LiveConnection &connection)
{
    const history::OpenConnection &row = connection.row();
    const auto open = m_store.listOpen();
    if (!open)
        return open.error();
    for (const history::OpenConnection &each : open.value()) {
        if (each.bootId != row.bootId || each.interfaceIndex != row.interfaceIndex)
            continue;
        if (areSame(each, row))
            return std::size_t{0};
        const auto key = close(each);
        if (!key)
            return key.error();
    }
    const auto seenBefore = m_store.listSeen();
    if (!seenBefore)
        return seenBefore.error();
    const FirstSightVerdict verdict = judge(firstSightOf(connection), seenBefore.value());
    std::vector<history::Connection> unwatched;
    if (verdict.unwatched)
        unwatched.push_back(*verdict.unwatched);
    auto added = m_store.see({verdict.settled}, unwatched);
    if (added && verdict.wasSeenInThisRun)
        connection.leaveOut(connection.state().countersAtFirst);
    return added;
}

std::optional<history::StoreError> RecordBook::leave(std::vector<LiveConnection> lasting)
{
    catchUp();
    std::vector<Unwritten> unwritten(m_left.begin(), m_left.end());
    for (const Unwritten &finished : m_unwritten)
        unwritten.push_back(finished);
    for (LiveConnection &connection : lasting) {
        if (!save(connection))
            unwritten.push_back({connection});
    }
    return unwritten.empty() ? std::nullopt : m_file.write(std::move(unwritten));
}

void RecordBook::recoverEarlierConnections()
{
    const auto open = m_store.listOpen();
    if (!open)
        return fail(open.error());
    // All are asked about before the first attempt to close one, which can take long.
    for (const history::OpenConnection &row : open.value()) {
        if (row.bootId == m_bootId && m_lasting.count(row.key) == 0 && m_stillLasts(row))
            m_lasting.emplace(row.key, row);
    }
    bool isComplete = true;
    for (const history::OpenConnection &row : open.value()) {
        if (m_lasting.count(row.key) != 0)
            continue;
        const auto key = close(row);
        if (key)
            continue;
        fail(key.error());
        // What the store does not take at all must not keep the rest from it.
        if (key.error().kind != history::StoreError::Kind::BadRecord)
            return;
        isComplete = false;
    }
    m_isRecovered = true;
    if (isComplete)
        succeed();
}

/// Then its connection resumes where the counters were seen last.
bool RecordBook::isLasting(const history::SeenLink &link) const
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
    std::vector<history::SeenLink> links;
    std::vector<history::Connection> unwatched;
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
    for (const history::Connection &record : unwatched)
        m_listener.recovered(record);
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
    auto key = connection.row().key == 0 ? begin(connection) : m_store.checkpoint(connection.row());
    // Somebody has put another file in the store's place.
    if (!key && key.error().kind == history::StoreError::Kind::NoSuchRecord)
        key = begin(connection);
    if (key)
        succeed();
    else
        fail(key.error());
    return bool(key);
}

history::Result<std::int64_t> RecordBook::begin(LiveConnection &connection)
{
    const auto isResumed = attach(connection);
    if (!isResumed)
        return isResumed.error();
    return isResumed.value() ? m_store.checkpoint(connection.row()) : connection.row().key;
}

/// Gives it its row: a new one, or the one that an earlier process has left of the same
/// connection, which then lacks what has happened since. Whether that is so.
history::Result<bool> RecordBook::attach(LiveConnection &connection)
{
    leaveOutWhatIsRecorded(connection);
    auto stored = m_store.begin(connection.row());
    if (stored && !areSame(stored.value(), connection.row()))
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
        catchUp();
}

void RecordBook::catchUp()
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
    m_listener.failed(error);
}

} // namespace recorder
