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
        std::function<void(const Connection &)> finished; ///< it is in the store now
        std::function<void(const StoreError &)> failed;   ///< once for each new reason
    };
    /// Whether a link of this index is there and connected.
    using IsConnected = std::function<bool(std::int64_t linkIndex)>;

    RecordBook(StatisticsStore store, std::string bootId, IsConnected isConnected,
               Listener listener);

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
        std::int64_t openKey;
        Connection connection;
    };

    void recoverEarlierConnections();
    bool recover(const OpenConnection &row);
    void writeFinished();
    void fail(const StoreError &error);

    StatisticsStore m_store;
    std::string m_bootId;
    IsConnected m_isConnected;
    Listener m_listener;
    std::deque<Unwritten> m_unwritten;
    std::string m_lastFailure;
    bool m_isRecovered = false;
};

} // namespace refhost
