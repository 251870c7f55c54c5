// SPDX-License-Identifier: MIT
#pragma once

#include "ApnTracker.h"
#include "LogCompletion.h"
#include "PppdLog.h"
#include "StatisticsStore.h"
#include "YearResolver.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace refhost
{

/// What a log holds and no connection can be made of.
struct Unusable {
    std::string reason;
    std::size_t count = 0;
    std::int64_t firstLine = 0;
    std::string firstText; ///< the beginning of that line
};

/// Puts the connections of a log together, each process for itself.
class PppdConnections
{
public:
    /// `fallbackProfile` names connections whose APN the log does not show;
    /// without it they go by their interface.
    PppdConnections(const YearResolver &years, std::string fallbackProfile);

    /// Takes the events of a whole log, in its order; to be called once.
    void takeAll(const std::vector<PppdEvent> &events);

    /// In the order in which they ended.
    const std::vector<Connection> &connections() const { return m_connections; }
    /// Where each of connections() has its profile from.
    const std::vector<ProfileSource> &profileSources() const { return m_profileSources; }
    /// One entry for each reason that applies.
    const std::vector<Unusable> &unusable() const { return m_unusable; }

private:
    /// A connection while its lines come in. The events outlive it.
    struct Dial {
        const PppdEvent *connect = nullptr;
        const PppdEvent *localAddress = nullptr;
        const PppdEvent *connectTime = nullptr;
    };

    void take(const PppdEvent &event);
    void takeApn(const PppdEvent &event);
    void connect(Dial &dial, const PppdEvent &event);
    void noteConnectTime(Dial &dial, const PppdEvent &event);
    void finish(Dial &dial, const PppdEvent &byteCounts);
    void abandon(Dial &dial);
    void store(const Dial &dial, const PppdEvent &byteCounts);
    std::int64_t startOf(const Dial &dial, std::int64_t endUtc) const;
    ProfileSource nameProfile(Connection &connection, std::int64_t pid) const;
    void count(const char *reason, const PppdEvent &event);

    const YearResolver &m_years;
    std::string m_fallbackProfile;
    ApnTracker m_apns;
    std::unordered_map<std::int64_t, Dial> m_dials;
    std::vector<Connection> m_connections;
    std::vector<ProfileSource> m_profileSources;
    std::vector<Unusable> m_unusable;
};

} // namespace refhost
