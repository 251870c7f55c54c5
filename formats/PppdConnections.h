// SPDX-License-Identifier: MIT
#pragma once

#include "ApnTracker.h"
#include "Imported.h"
#include "PppdLog.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace formats
{

/// Puts the connections of a log together, each process of each host for itself.
class PppdConnections
{
public:
    /// `fallbackProfile` names connections whose APN the log does not show;
    /// without it they go by their interface.
    explicit PppdConnections(std::string fallbackProfile);

    /// Takes the events of a joined log, in its order; to be called once.
    void takeAll(const std::vector<PppdEvent> &events);

    /// In the order in which they ended.
    const std::vector<history::Connection> &connections() const { return m_connections; }
    /// Where each of connections() has its profile from.
    const std::vector<ProfileSource> &profileSources() const { return m_profileSources; }
    /// One entry for each reason that applies.
    const std::vector<Unusable> &unusable() const { return m_unusable; }

private:
    /// A process, with its connection while that one's lines come in. The events
    /// outlive it.
    struct Dial {
        const PppdEvent *connect = nullptr;
        const PppdEvent *localAddress = nullptr;
        const PppdEvent *connectTime = nullptr;
        const PppdEvent *ending = nullptr;
        /// The place of the connection before, as long as it is open how that ended.
        std::optional<std::size_t> finished;
    };
    /// Process ids mean something on their own host alone.
    struct Host {
        ApnTracker apns;
        std::unordered_map<std::int64_t, Dial> dials;
    };

    void take(const PppdEvent &event);
    void takeApn(ApnTracker &apns, const PppdEvent &event);
    void connect(Dial &dial, const PppdEvent &event);
    void noteConnectTime(Dial &dial, const PppdEvent &event);
    void noteEnding(Dial &dial, const PppdEvent &event);
    void finish(Dial &dial, const PppdEvent &byteCounts, const std::string &apn);
    void exit(Dial &dial);
    void abandon(Dial &dial);
    std::optional<std::size_t> store(const Dial &dial, const PppdEvent &byteCounts,
                                     const std::string &apn);
    std::int64_t startOf(const Dial &dial, const history::Connection &connection) const;
    ProfileSource nameProfile(history::Connection &connection, const std::string &apn) const;
    void count(history::Translatable reason, const PppdEvent &event);

    std::string m_fallbackProfile;
    std::unordered_map<std::string, Host> m_hosts;
    std::vector<history::Connection> m_connections;
    std::vector<ProfileSource> m_profileSources;
    std::vector<Unusable> m_unusable;
};

} // namespace formats
