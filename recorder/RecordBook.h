// SPDX-License-Identifier: MIT
#pragma once

#include "LiveConnection.h"
#include "LockPatience.h"
#include "Problem.h"
#include "UnwatchedTraffic.h"
#include "UnwrittenFile.h"
#include "history/Store.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace recorder
{

class SystemClock;

/// Writes connections into a store. What cannot be written stays here and is
/// tried again, in the order in which it happened, and at the end goes into a file
/// beside the store, from which the next one takes it over.
class RecordBook
{
public:
    struct Listener {
        /// It is in the store now; with its LiveConnection::id.
        std::function<void(const history::Connection &, std::int64_t id)> finished;
        std::function<void(const history::Connection &)>
            recovered; ///< the same, of an earlier process
        /// Once for each new reason, and for a locked store once that has lasted.
        std::function<void(const Problem &)> failed;
        std::function<void()> succeeded; ///< the first time after that
    };
    /// Whether the connection that an earlier process has left open, in this run of
    /// the system, still lasts.
    using StillLasts = std::function<bool(const history::OpenConnection &row)>;

    /// `clock` must live longer.
    RecordBook(history::Store store, UnwrittenFile file, std::string bootId,
               const SystemClock &clock, StillLasts stillLasts, Listener listener);

    /// Settles what earlier processes left, with these links as they are found now. Links
    /// that are found later may be added.
    void settle(std::vector<FirstSight> sights);

    /// Brings the store up to date with the connection. The first time, it resumes
    /// what the store has of the same one already. A store that is locked is
    /// waited for once until the next writePending().
    /// Whether it is.
    bool save(LiveConnection &connection);
    void finish(const LiveConnection &connection, bool hasFinalCounters);
    /// Keeps what links show that have no connection, unless there is something to be
    /// written first. Whether it is in the store.
    bool see(const std::vector<history::SeenLink> &links);
    /// The end: these connections last. What cannot be written goes into the file; the
    /// reason if it is lost.
    std::optional<Problem> leave(std::vector<LiveConnection> lasting);

    /// Whether there is something that writePending() has to write before anything else
    /// is written, which is so in the beginning.
    bool isBehind() const { return !isSettled() || !m_unwritten.empty(); }
    /// Whether there is more to be written than the next checkpoint.
    bool isLate() const { return isBehind() || m_isLocked; }
    /// Finishes what earlier processes left open and does not last, as recovered at
    /// its last update, and records what links have moved since nobody watched them;
    /// then tries again what could not be written.
    void writePending();

private:
    void readFile();
    void takeOver();
    history::Result<std::int64_t> takeOver(Unwritten &left);
    history::Result<std::size_t> settleBefore(Unwritten &left);
    history::Result<std::size_t> settleBefore(LiveConnection &connection);
    history::Result<std::int64_t> begin(LiveConnection &connection);
    history::Result<bool> attach(LiveConnection &connection);
    history::Result<history::OpenConnection> beginApart(LiveConnection &connection,
                                                        const history::OpenConnection &other);
    void leaveOutWhatIsRecorded(LiveConnection &connection) const;
    bool isSettled() const { return m_isRecovered && m_firstSights.empty(); }
    bool isLasting(const history::SeenLink &link) const;
    void recoverEarlierConnections();
    void recordUnwatchedTraffic();
    history::Result<std::int64_t> close(const history::OpenConnection &row);
    void writeFinished();
    history::Result<std::int64_t> write(Unwritten &finished);
    void fail(const history::StoreError &error);
    void succeed();

    history::Store m_store;
    UnwrittenFile m_file;
    std::deque<Unwritten> m_left; ///< by an earlier process, in the file
    bool m_isFileRead = false;
    /// The links of each run whose connections were left, with nothing open before them.
    std::set<std::tuple<std::string, std::string, std::int64_t>> m_settledLinks;
    std::string m_bootId;
    const SystemClock &m_clock;
    StillLasts m_stillLasts;
    Listener m_listener;
    LockPatience m_patience;
    std::deque<Unwritten> m_unwritten;
    std::string m_lastFailure;
    std::map<std::int64_t, history::OpenConnection> m_lasting; ///< rows to be resumed, by key
    std::vector<FirstSight> m_firstSights; ///< that nothing has been made of yet
    bool m_isRecovered = false;
    bool m_isLocked = false; ///< as far as is known
    /// Up to what their counters show, links' traffic before their present connections
    /// is in records, by index, in this run of the system.
    std::map<std::int64_t, LinkCounters> m_recorded;
};

} // namespace recorder
