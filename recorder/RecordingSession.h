// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionState.h"
#include "LiveConnection.h"
#include "RecordBook.h"
#include "WatchedLinks.h"
#include "modem/PortSource.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace recorder
{

class LinkSource;
class SystemClock;

/// Is told by a session what happens, from within the call that finds it out.
struct SessionListener {
    std::function<void(const ConnectionState &)> connected;
    /// The connection is finished in the store already.
    std::function<void(const history::Connection &, std::int64_t id)> disconnected;
    /// The same of one that an earlier process had left open.
    std::function<void(const history::Connection &)> recovered;
    std::function<void(const ConnectionState &)> stateChanged;
    std::function<void()> saved; ///< a connection that lasts, as it is now
    std::function<void(const Problem &)> failed;
    std::function<void()> succeeded;
};

/// The recording itself, for as long as its store is this recorder's and the links can
/// be seen.
class RecordingSession
{
public:
    /// What it works with; all of it must live longer.
    struct Surroundings {
        LinkSource &links;
        const modem::PortSource &ports;
        const SystemClock &clock;
        std::int64_t &lastId; ///< of the connections of this process
    };

    /// `storePath` is the one that all recorders know the store by.
    RecordingSession(history::Store store, const QString &storePath, const std::string &bootId,
                     const QStringList &interfaceNames, const QString &profileName,
                     Surroundings surroundings, const SessionListener &listener);

    /// Settles what earlier processes left open, and records the links from now on.
    void begin();
    void handleChange(const LinkChange &change);
    /// What is known of the modem's data port of this name has changed.
    void handlePort(const QString &interfaceName);
    /// Asks for counters and tries again what could not be written; a checkpoint brings the
    /// store up to date besides.
    void tick(bool isCheckpoint);
    /// Whether there is anything for tick() to do: a line that is up, or something that is
    /// not in the store yet.
    bool isBusy() const;
    /// Names the profile of present and coming connections.
    void setProfileName(const QString &name);

    // The end: no other call follows. What is lost by it, if anything.

    /// Leaves what is connected open in the store, as it is at this moment.
    std::optional<Problem> leave();
    /// Nothing more will be heard of the links: what is open ends as it was known last.
    std::optional<Problem> endAll();

private:
    void handleLiveChange(LiveConnection &connection, const LinkChange &change);
    void checkClock();
    void noteRelease(const LinkChange &change);
    void beginWhereNothingCounts(const Link &link);
    void begin(const Link &link, const LinkCounters &base);
    void finish(LiveConnection &connection, bool hasFinalCounters);
    void finishWhatHasEnded();
    void save(LiveConnection &connection);
    void report(LiveConnection &connection);
    void requestCounters();
    bool isWatched(const Link &link) const;
    bool isConnected(const Link &link) const;
    void countUntilNow(const std::string &interfaceName);
    bool isChangedByPort(const LiveConnection &connection) const;
    void setOwner(LiveConnection &connection);
    modem::Subscriber ownerOf(const std::string &interfaceName) const;
    void noteSightOfPort(const Link &link);
    FirstSight firstSightOf(const Link &link) const;
    std::vector<FirstSight> firstSights() const;
    history::SeenLink seen(const Link &link) const;
    std::vector<history::SeenLink> idleLinks() const;
    bool areIdleCountersKept(const std::vector<history::SeenLink> &idle) const;
    void keepIdleCounters();
    bool stillLasts(const history::OpenConnection &row);
    std::string profileFor(const Link &link) const;
    std::optional<std::string> knownProfileFor(const std::string &interfaceName) const;
    ConnectionState stateOf(LiveConnection &connection) const;
    Moment now() const;

    const std::string m_bootId;
    QString m_profileName;
    const Surroundings m_surroundings;
    const SessionListener m_listener;
    WatchedLinks m_watched;
    RecordBook m_book;
    std::map<int, LiveConnection> m_live; ///< by the link's index
    /// What links showed when their bearers stopped using them, by index, for as long as
    /// the kernel takes them for connected.
    std::map<int, LinkCounters> m_released;
    std::optional<int> m_countedLink; ///< while what is heard of it came before its port's news
    std::set<int> m_sightedPorts;     ///< indexes of links that are watched as modems' ports
    std::vector<Link> m_linksAtStart;
    std::vector<history::SeenLink> m_keptIdle; ///< what the store knows of links without one
    std::optional<std::int64_t> m_standIn;     ///< for what the clock shows
};

} // namespace recorder
