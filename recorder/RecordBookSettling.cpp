// SPDX-License-Identifier: MIT
// What earlier processes have left: rows that are open, connections in the file beside
// the store, and links that have moved bytes since.
#include "RecordBook.h"

#include <algorithm>

namespace recorder
{

namespace
{

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

void RecordBook::readFile()
{
    m_isFileRead = true;
    const UnwrittenFile::Contents left = m_file.read();
    m_left = std::deque<Unwritten>(left.connections.begin(), left.connections.end());
    for (const Problem &refusal : left.refusals)
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
        if (areSameConnection(each, row))
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

} // namespace recorder
