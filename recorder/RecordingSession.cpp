// SPDX-License-Identifier: MIT
#include "RecordingSession.h"

#include "LinkSource.h"
#include "SystemClock.h"

#include <algorithm>

namespace recorder
{

namespace
{

const Link *linkOf(const history::OpenConnection &row, const std::vector<Link> &links)
{
    const auto link = std::find_if(links.begin(), links.end(), [&row](const Link &each) {
        return each.index == row.interfaceIndex && each.isConnected() &&
               each.connectionMark() == row.linkMark;
    });
    return link == links.end() ? nullptr : &*link;
}

bool showTheSame(const history::SeenLink &a, const history::SeenLink &b)
{
    return a.interfaceIndex == b.interfaceIndex && a.interfaceName == b.interfaceName &&
           a.uploaded == b.uploaded && a.downloaded == b.downloaded;
}

} // namespace

RecordingSession::RecordingSession(history::Store store, const QString &storePath,
                                   const std::string &bootId, const QStringList &interfaceNames,
                                   const QString &profileName, Surroundings surroundings,
                                   const SessionListener &listener)
    : m_bootId(bootId)
    , m_profileName(profileName)
    , m_surroundings(surroundings)
    , m_listener(listener)
    , m_watched(interfaceNames)
    , m_book(
          std::move(store), UnwrittenFile(storePath), bootId, surroundings.clock,
          [this](const history::OpenConnection &row) { return stillLasts(row); },
          RecordBook::Listener{listener.disconnected, listener.recovered, listener.failed,
                               listener.succeeded})
{
}

void RecordingSession::begin()
{
    m_linksAtStart = m_surroundings.links.links();
    m_book.settle(firstSights());
    for (const Link &link : m_surroundings.links.links())
        handleChange({link, false, false});
}

std::optional<Problem> RecordingSession::leave()
{
    // What has ended must not be left open, and what lasts is left as it is now.
    for (auto &entry : m_live)
        m_surroundings.links.requestCounters(entry.first);
    m_surroundings.links.deliverPending();
    finishWhatHasEnded();
    std::vector<LiveConnection> lasting;
    for (const auto &entry : m_live)
        lasting.push_back(entry.second);
    auto loss = m_book.leave(std::move(lasting));
    m_book.see(idleLinks());
    return loss;
}

std::optional<Problem> RecordingSession::endAll()
{
    for (auto &entry : m_live)
        entry.second.end(now());
    finishWhatHasEnded();
    return m_book.leave({});
}

void RecordingSession::finishWhatHasEnded()
{
    std::vector<LiveConnection> ended;
    for (const auto &entry : m_live) {
        if (entry.second.hasEnded())
            ended.push_back(entry.second);
    }
    for (LiveConnection &connection : ended)
        finish(connection, false);
}

void RecordingSession::setProfileName(const QString &name)
{
    m_profileName = name;
    for (auto &entry : m_live) {
        const std::string &interfaceName = entry.second.row().interfaceName;
        entry.second.setProfile(knownProfileFor(interfaceName).value_or(interfaceName));
    }
}

void RecordingSession::handleChange(const LinkChange &change)
{
    if (change.isGone || !change.link.isConnected())
        m_released.erase(change.link.index);
    const auto live = m_live.find(change.link.index);
    if (live != m_live.end())
        handleLiveChange(live->second, change);
    else if (!change.isGone && isConnected(change.link) && isWatched(change.link))
        beginWhereNothingCounts(change.link);
}

void RecordingSession::handlePort(const QString &interfaceName)
{
    const std::string name = interfaceName.toStdString();
    countUntilNow(name);
    for (const Link &link : m_surroundings.links.links()) {
        if (link.name != name || !isWatched(link))
            continue;
        const auto live = m_live.find(link.index);
        if (live != m_live.end())
            setOwner(live->second);
        else
            noteSightOfPort(link);
        handleChange({link, false, false});
    }
}

void RecordingSession::setOwner(LiveConnection &connection)
{
    const std::string interfaceName = connection.row().interfaceName;
    if (const auto profile = knownProfileFor(interfaceName))
        connection.setProfile(*profile);
    connection.setOwner(ownerOf(interfaceName));
    connection.isCheckpointDue = true;
}

modem::Subscriber RecordingSession::ownerOf(const std::string &interfaceName) const
{
    const auto port = m_surroundings.ports.port(QString::fromStdString(interfaceName));
    return port ? port->subscriber : modem::Subscriber();
}

/// What has been moved before roaming begins or ends belongs to what was before, and an
/// older answer of the kernel's that still waits may not pass for the last one before an end.
void RecordingSession::countUntilNow(const std::string &interfaceName)
{
    for (const auto &[index, connection] : m_live) {
        if (connection.row().interfaceName == interfaceName && isChangedByPort(connection)) {
            m_surroundings.links.requestCounters(index);
            m_countedLink = index;
            m_surroundings.links.deliverPending();
            m_countedLink.reset();
            return;
        }
    }
}

bool RecordingSession::isChangedByPort(const LiveConnection &connection) const
{
    const auto port =
        m_surroundings.ports.port(QString::fromStdString(connection.row().interfaceName));
    if (!port || connection.hasEnded())
        return false;
    const modem::Roaming roaming = port->subscriber.roaming;
    const bool willRoam = roaming == modem::Roaming::Roaming;
    return !port->isConnected ||
           (roaming != modem::Roaming::Unknown && connection.isRoaming() != willRoam);
}

/// One that is watched as a port alone was not among those that were there at first.
void RecordingSession::noteSightOfPort(const Link &link)
{
    if (!m_watched.contains(link) && m_sightedPorts.insert(link.index).second)
        m_book.settle({firstSightOf(link)});
}

void RecordingSession::handleLiveChange(LiveConnection &connection, const LinkChange &change)
{
    const bool isStillConnected = !change.isGone && isConnected(change.link);
    connection.setLink(change.link);
    if (!isStillConnected) {
        connection.end(now());
        noteRelease(change);
    }
    if (change.hasFreshCounters)
        connection.advance(change.link.counters, now());
    if (!connection.hasEnded())
        return report(connection);
    if (!change.hasFreshCounters && !change.isGone)
        return m_surroundings.links.requestCounters(change.link.index);
    finish(connection, change.hasFreshCounters);
    // What came back before the final counters of the former connection did
    // begins where those end.
    noteRelease(change);
    if (isStillConnected && isWatched(change.link))
        beginWhereNothingCounts(change.link);
}

/// A link that stays connected without a bearer.
void RecordingSession::noteRelease(const LinkChange &change)
{
    if (!change.isGone && change.link.isConnected())
        m_released[change.link.index] = change.link.counters;
}

/// Before the connection, or where the one of the former bearer ended: what has been moved
/// since then belongs to the new one.
void RecordingSession::beginWhereNothingCounts(const Link &link)
{
    const auto released = m_released.find(link.index);
    const LinkCounters base = released == m_released.end() ? link.idleCounters : released->second;
    m_released.erase(link.index);
    begin(link, base);
}

/// A modem's data port is watched whatever it is called.
bool RecordingSession::isWatched(const Link &link) const
{
    return m_watched.contains(link) ||
           m_surroundings.ports.port(QString::fromStdString(link.name)).has_value();
}

/// A link stays up and keeps its address when the bearer stops using it, so the modem has
/// a say. Where nobody knows what it says, as while another SIM is put in, its last word holds.
bool RecordingSession::isConnected(const Link &link) const
{
    const auto port = m_surroundings.ports.port(QString::fromStdString(link.name));
    const bool isUnused = port && m_surroundings.ports.isAvailable()
                              ? !port->isConnected
                              : m_released.count(link.index) != 0;
    return link.isConnected() && (!isUnused || link.index == m_countedLink);
}

/// Told once for each time that stands in for those that cannot be held.
void RecordingSession::checkClock()
{
    const std::int64_t shown = m_surroundings.clock.utcSeconds();
    const std::int64_t stored = storableSeconds(shown);
    if (stored == shown) {
        m_standIn.reset();
    } else if (m_standIn != stored) {
        m_standIn = stored;
        Problem problem;
        problem.kind = Problem::Kind::ClockOutOfRange;
        problem.standInUtc = stored;
        m_listener.failed(problem);
    }
}

void RecordingSession::begin(const Link &link, const LinkCounters &base)
{
    checkClock();
    const auto [live, isNew] =
        m_live.try_emplace(link.index, ++m_surroundings.lastId, m_bootId, profileFor(link), link,
                           base, now(), ownerOf(link.name));
    LiveConnection &connection = live->second;
    // What an earlier process has recorded may bear another profile.
    if (const auto profile = knownProfileFor(link.name))
        connection.setProfile(*profile);
    save(connection);
    m_listener.connected(stateOf(connection));
}

void RecordingSession::finish(LiveConnection &connection, bool hasFinalCounters)
{
    checkClock();
    m_book.finish(connection, hasFinalCounters);
    m_watched.forget(connection.linkIndex());
    m_live.erase(connection.linkIndex());
}

void RecordingSession::save(LiveConnection &connection)
{
    if (m_book.save(connection))
        m_listener.saved();
}

void RecordingSession::report(LiveConnection &connection)
{
    if (connection.isCheckpointDue && connection.isUnsaved())
        save(connection);
    connection.isCheckpointDue = false;
    if (connection.isStateDue)
        m_listener.stateChanged(stateOf(connection));
    connection.isStateDue = false;
}

void RecordingSession::tick(bool isCheckpoint)
{
    isCheckpoint |= m_book.isLate();
    if (isCheckpoint) {
        m_book.writePending();
        keepIdleCounters();
    }
    for (auto &entry : m_live) {
        entry.second.isStateDue = true;
        entry.second.isCheckpointDue |= isCheckpoint;
    }
    requestCounters();
}

bool RecordingSession::isBusy() const
{
    const std::vector<Link> links = m_surroundings.links.links();
    const bool isAnyUp = std::any_of(links.begin(), links.end(), [this](const Link &link) {
        return link.isUp && isWatched(link);
    });
    return isAnyUp || !m_live.empty() || m_book.isLate() || !areIdleCountersKept(idleLinks());
}

/// Of what is watched and up even without a connection: the next one begins
/// with the counters known last, which must not be old then.
void RecordingSession::requestCounters()
{
    for (const Link &link : m_surroundings.links.links()) {
        if (m_live.count(link.index) != 0 || (link.isUp && isWatched(link)))
            m_surroundings.links.requestCounters(link.index);
    }
}

std::vector<FirstSight> RecordingSession::firstSights() const
{
    std::vector<FirstSight> sights;
    for (const Link &link : m_linksAtStart) {
        if (isWatched(link))
            sights.push_back(firstSightOf(link));
    }
    return sights;
}

FirstSight RecordingSession::firstSightOf(const Link &link) const
{
    const Moment moment = now();
    return {seen(link), link.isConnected() ? link.idleCounters : link.counters,
            moment.utcSeconds - moment.bootMilliseconds / 1000, profileFor(link)};
}

history::SeenLink RecordingSession::seen(const Link &link) const
{
    return {m_bootId,
            link.index,
            link.name,
            link.counters.uploaded,
            link.counters.downloaded,
            storableSeconds(m_surroundings.clock.utcSeconds())};
}

std::vector<history::SeenLink> RecordingSession::idleLinks() const
{
    std::vector<history::SeenLink> idle;
    for (const Link &link : m_surroundings.links.links()) {
        if (m_live.count(link.index) == 0 && isWatched(link))
            idle.push_back(seen(link));
    }
    return idle;
}

bool RecordingSession::areIdleCountersKept(const std::vector<history::SeenLink> &idle) const
{
    return idle.empty() ||
           std::equal(idle.begin(), idle.end(), m_keptIdle.begin(), m_keptIdle.end(), showTheSame);
}

/// What a link moves without a connection must not be taken later for what it moved
/// while nothing recorded.
void RecordingSession::keepIdleCounters()
{
    std::vector<history::SeenLink> idle = idleLinks();
    if (!areIdleCountersKept(idle) && m_book.see(idle))
        m_keptIdle = std::move(idle);
}

/// Asked late if the store was locked in the beginning: what was connected then and
/// has ended since waits to resume the row.
bool RecordingSession::stillLasts(const history::OpenConnection &row)
{
    const Link *const link = linkOf(row, m_linksAtStart);
    if (!link)
        return false;
    if (m_watched.contains(*link))
        return true;
    // Renamed meanwhile, or watched only by the process before.
    if (!linkOf(row, m_surroundings.links.links()))
        return false;
    m_watched.resume(link->index);
    return true;
}

std::string RecordingSession::profileFor(const Link &link) const
{
    return knownProfileFor(link.name).value_or(link.name);
}

/// The user's word counts most, then the APN.
std::optional<std::string> RecordingSession::knownProfileFor(const std::string &interfaceName) const
{
    if (!m_profileName.isEmpty())
        return m_profileName.toStdString();
    const std::string apn = ownerOf(interfaceName).apn.toStdString();
    return apn.empty() ? std::nullopt : std::make_optional(apn);
}

ConnectionState RecordingSession::stateOf(LiveConnection &connection) const
{
    const history::OpenConnection &row = connection.row();
    const LinkCounters rate = connection.takeRate(now());
    ConnectionState state;
    state.id = connection.id();
    state.profile = QString::fromStdString(row.profile);
    state.interfaceName = QString::fromStdString(row.interfaceName);
    state.operatorName = QString::fromStdString(row.operatorName);
    state.operatorCode = QString::fromStdString(row.operatorCode);
    state.sim = QString::fromStdString(row.sim);
    state.isRoaming = connection.isRoaming();
    state.technology = QString::fromStdString(row.technology);
    state.since = QDateTime::fromSecsSinceEpoch(row.startUtc).toUTC();
    state.uploadedBytes = row.uploadedBytes;
    state.downloadedBytes = row.downloadedBytes;
    state.uploadRate = rate.uploaded;
    state.downloadRate = rate.downloaded;
    return state;
}

Moment RecordingSession::now() const
{
    return {m_surroundings.clock.utcSeconds(), m_surroundings.clock.bootMilliseconds()};
}

} // namespace recorder
