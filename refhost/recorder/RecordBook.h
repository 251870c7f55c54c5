// SPDX-License-Identifier: MIT
#pragma once

#include "LiveConnection.h"
#include "StatisticsStore.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

namespace refhost
{

/// Writes connections into a store. What cannot be written stays here and is
/// tried again, in the order in which it happened.
class RecordBook
{
public:
    struct Listener {
        /// It is in the store now; with its LiveConnection::id.
        std::function<void(const Connection &, std::int64_t id)> finished;
        std::function<void(const StoreError &)> failed; ///< once for each new reason
        std::function<void()> succeeded;                ///< the first time after that
    };
    /// Whether the connection that an earlier process has left open, in this run of
    /// the system, still lasts.
    using StillLasts = std::function<bool(const OpenConnection &row)>;

    RecordBook(StatisticsStore store, std::string bootId, StillLasts stillLasts, Listener listener);

    /// Brings the store up to date with the connection. The first time, it goes
    /// on with what the store has of the same one already.
    void save(LiveConnection &connection, const Moment &now);
    void finish(const LiveConnection &connection, bool hasFinalCounters);

    /// Whether there is something that catchUp() has to write before anything else
    /// is written, which is so in the beginning.
    bool isBehind() const { return !m_isRecovered || !m_unwritten.empty(); }
    /// Finishes what earlier processes left open on links that are gone or not
    /// connected, as recovered at its last update; then tries again what could
    /// not be written.
    void catchUp();

private:
    struct Unwritten {
        std::int64_t id;
        std::int64_t openKey;
        Connection connection;
    };

    Result<std::int64_t> begin(LiveConnection &connection, const Moment &now);
    void recoverEarlierConnections();
    bool recover(const OpenConnection &row);
    void writeFinished();
    void fail(const StoreError &error);
    void succeed();

    StatisticsStore m_store;
    std::string m_bootId;
    StillLasts m_stillLasts;
    Listener m_listener;
    std::deque<Unwritten> m_unwritten;
    std::string m_lastFailure;
    bool m_isRecovered = false;
};

} // namespace refhost
