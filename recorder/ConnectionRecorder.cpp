// SPDX-License-Identifier: MIT
#include "ConnectionRecorder.h"

#include "LinkMonitor.h"
#include "LiveConnection.h"
#include "RecordBook.h"
#include "RecorderLock.h"
#include "SystemClock.h"

#include <QFileInfo>

#include <algorithm>

namespace recorder
{

namespace
{

constexpr int ticksPerCheckpoint = 4;

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

/// Queued, so that a listener that opens a dialog does not hold up or re-enter
/// what is being recorded.
template <typename Emission>
void later(QObject *sender, Emission emission)
{
    QMetaObject::invokeMethod(sender, emission, Qt::QueuedConnection);
}

} // namespace

ConnectionRecorder::ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames,
                                       QObject *parent)
    : ConnectionRecorder(storePath, interfaceNames, std::make_unique<LinkMonitor>(),
                         std::make_unique<SystemClock>(), RecorderIntervals(), parent)
{
}

ConnectionRecorder::ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames,
                                       std::unique_ptr<LinkSource> links,
                                       std::unique_ptr<SystemClock> clock,
                                       const RecorderIntervals &intervals, QObject *parent)
    : QObject(parent)
    , m_storePath(storePath)
    , m_interfaceNames(interfaceNames)
    , m_links(links.release())
    , m_clock(std::move(clock))
    , m_timer(this)
    , m_retryTimer(this)
{
    qRegisterMetaType<history::Connection>();
    qRegisterMetaType<recorder::ConnectionState>();
    m_links->setParent(this);
    connect(m_links, &LinkSource::failed, this, &ConnectionRecorder::stop);
    m_timer.setInterval(intervals.tick);
    connect(&m_timer, &QTimer::timeout, this, &ConnectionRecorder::tick);
    m_retryTimer.setInterval(intervals.retry);
    connect(&m_retryTimer, &QTimer::timeout, this, &ConnectionRecorder::tryAgain);
}

ConnectionRecorder::~ConnectionRecorder()
{
    if (!m_book)
        return;
    catchUpWithLinks();
    if (!m_book)
        return;
    std::vector<LiveConnection> lasting;
    for (const auto &entry : m_live)
        lasting.push_back(entry.second);
    // Nobody listens any more.
    if (const auto loss = m_book->leave(std::move(lasting)))
        qWarning("%s", loss->message.c_str());
    m_book->see(idleLinks());
}

/// What has ended must not be left open, and what lasts is left as it is now.
void ConnectionRecorder::catchUpWithLinks()
{
    for (auto &entry : m_live)
        m_links->requestCounters(entry.first);
    m_links->catchUp();
    std::vector<LiveConnection> ended;
    for (const auto &entry : m_live) {
        if (entry.second.hasEnded())
            ended.push_back(entry.second);
    }
    for (LiveConnection &connection : ended)
        finish(connection, false);
}

bool ConnectionRecorder::start()
{
    const bool hasStarted = tryToStart();
    m_isLate = true;
    if (!hasStarted)
        m_retryTimer.start();
    return hasStarted;
}

void ConnectionRecorder::tryAgain()
{
    if (tryToStart())
        m_retryTimer.stop();
}

bool ConnectionRecorder::tryToStart()
{
    if (!openBook() || !lockStore() || !m_links->start()) {
        giveUp();
        return false;
    }
    removeObstacle();
    m_linksAtStart = m_links->links();
    m_resumedLinks.clear();
    m_keptIdle.clear();
    m_book->settle(firstSights());
    for (const Link &link : m_links->links())
        handleChange({link, false, false});
    connect(m_links, &LinkSource::linkChanged, this, &ConnectionRecorder::handleChange);
    m_timer.start();
    return true;
}

/// Who does not record or does not see the links must not settle what is open, for
/// another recorder may be at it.
void ConnectionRecorder::giveUp()
{
    m_book.reset();
    m_lock.reset();
}

bool ConnectionRecorder::openBook()
{
    m_bootId = currentBootId();
    if (m_bootId.empty()) {
        obstruct(tr("\"/proc/sys/kernel/random/boot_id\" cannot be read, so connections are not "
                    "recorded; mount /proc."));
        return false;
    }
    auto store = history::Store::openForRecording(m_storePath.toStdString());
    if (!store) {
        if (m_patience.isWorthTelling(store.error(), m_clock->bootMilliseconds()))
            obstruct(QString::fromStdString(store.error().message));
        return false;
    }
    m_patience.renew();
    const auto finished = [this](const history::Connection &connection, std::int64_t id) {
        later(this, [this, connection, id] { emit disconnected(connection, id); });
    };
    const auto recovered = [this](const history::Connection &connection) {
        if (m_isLate)
            later(this, [this, connection] { emit disconnected(connection, 0); });
    };
    const auto succeededToWrite = [this] { later(this, [this] { emit succeeded(); }); };
    const auto failedToWrite = [this](const history::StoreError &error) {
        fail(QString::fromStdString(error.message));
    };
    m_book = std::make_unique<RecordBook>(
        std::move(store.value()), UnwrittenFile(knownPath()), m_bootId, *m_clock,
        [this](const history::OpenConnection &row) { return stillLasts(row); },
        RecordBook::Listener{finished, recovered, failedToWrite, succeededToWrite});
    return true;
}

/// The same for all recorders, by whichever of its names the store was opened.
QString ConnectionRecorder::knownPath() const
{
    const QFileInfo store(m_storePath);
    return store.exists() ? store.canonicalFilePath() : store.absoluteFilePath();
}

bool ConnectionRecorder::lockStore()
{
    m_lock = std::make_unique<RecorderLock>(knownPath());
    const auto outcome = m_lock->take();
    if (outcome == RecorderLock::Outcome::HeldByAnother)
        obstruct(recordedByAnother(*m_lock));
    else if (outcome == RecorderLock::Outcome::Failed)
        obstruct(
            tr("Connections are not recorded, for %1 cannot be written (%2); allow yourself to "
               "write there.")
                .arg(m_lock->path(), m_lock->errorString()));
    else if (outcome == RecorderLock::Outcome::Refused)
        obstruct(tr("Connections are not recorded, for %1 is in the way of the lock (%2); move it "
                    "away.")
                     .arg(m_lock->path(), m_lock->errorString()));
    return outcome == RecorderLock::Outcome::Taken;
}

QString ConnectionRecorder::recordedByAnother(const RecorderLock &lock)
{
    const auto holder = lock.holder();
    if (!holder)
        return tr("Connections are recorded by another program already, and appear here when "
                  "they have ended.");
    return tr("Connections are recorded by another %1 already (process %2), and appear here when "
              "they have ended.")
        .arg(holder->program)
        .arg(holder->process);
}

void ConnectionRecorder::fail(const QString &reason)
{
    later(this, [this, reason] { emit failed(reason); });
}

/// Told once, however often it is met.
void ConnectionRecorder::obstruct(const QString &reason)
{
    if (reason == m_obstacle)
        return;
    m_obstacle = reason;
    fail(reason);
}

void ConnectionRecorder::removeObstacle()
{
    if (!m_isLate)
        return;
    const bool wasTold = !m_obstacle.isEmpty();
    m_obstacle.clear();
    later(this, [this, wasTold] {
        if (wasTold)
            emit succeeded();
        emit started();
    });
}

/// Nothing more will be heard of the links: what is open ends as it was known last, and
/// the lock is free for whoever can see them.
void ConnectionRecorder::stop(const QString &reason)
{
    obstruct(reason);
    const bool isRecording = m_timer.isActive();
    if (!isRecording)
        return;
    m_timer.stop();
    disconnect(m_links, &LinkSource::linkChanged, this, &ConnectionRecorder::handleChange);
    while (!m_live.empty()) {
        LiveConnection connection = m_live.begin()->second;
        connection.end(now());
        finish(connection, false);
    }
    if (const auto loss = m_book->leave({}))
        fail(QString::fromStdString(loss->message));
    giveUp();
    m_retryTimer.start();
}

void ConnectionRecorder::setProfileName(const QString &name)
{
    m_profileName = name;
    for (auto &entry : m_live)
        entry.second.setProfile(profileFor(entry.second.row().interfaceName));
}

void ConnectionRecorder::handleChange(const LinkChange &change)
{
    const auto live = m_live.find(change.link.index);
    if (live != m_live.end())
        handleLiveChange(live->second, change);
    else if (!change.isGone && change.link.isConnected() && isWatched(change.link))
        begin(change.link, change.link.idleCounters);
}

void ConnectionRecorder::handleLiveChange(LiveConnection &connection, const LinkChange &change)
{
    const bool isStillConnected = !change.isGone && change.link.isConnected();
    connection.setLink(change.link);
    if (!isStillConnected)
        connection.end(now());
    if (change.hasFreshCounters)
        connection.advance(change.link.counters, now());
    if (!connection.hasEnded())
        return report(connection);
    if (!change.hasFreshCounters && !change.isGone)
        return m_links->requestCounters(change.link.index);
    finish(connection, change.hasFreshCounters);
    // What came back before the final counters of the former connection did
    // begins where those end.
    if (isStillConnected && isWatched(change.link))
        begin(change.link, change.link.counters);
}

/// Told once for each time that stands in for those that cannot be held.
void ConnectionRecorder::checkClock()
{
    const std::int64_t shown = m_clock->utcSeconds();
    const std::int64_t stored = storableSeconds(shown);
    if (stored == shown) {
        m_standIn.reset();
    } else if (m_standIn != stored) {
        m_standIn = stored;
        fail(tr("The system's clock shows a time that the history cannot hold, so connections get "
                "%1 UTC instead; set the clock.")
                 .arg(QDateTime::fromSecsSinceEpoch(stored).toUTC().toString(
                     QStringLiteral("yyyy-MM-dd HH:mm:ss"))));
    }
}

void ConnectionRecorder::begin(const Link &link, const LinkCounters &base)
{
    checkClock();
    const auto [live, isNew] = m_live.try_emplace(link.index, ++m_lastId, m_bootId,
                                                  profileFor(link.name), link, base, now());
    LiveConnection &connection = live->second;
    // What an earlier process has recorded may bear another profile.
    if (!m_profileName.isEmpty())
        connection.setProfile(m_profileName.toStdString());
    m_book->save(connection);
    later(this, [this, state = stateOf(connection)] { emit connected(state); });
}

void ConnectionRecorder::finish(LiveConnection &connection, bool hasFinalCounters)
{
    checkClock();
    m_book->finish(connection, hasFinalCounters);
    m_resumedLinks.erase(connection.linkIndex());
    m_live.erase(connection.linkIndex());
}

void ConnectionRecorder::report(LiveConnection &connection)
{
    if (connection.isCheckpointDue)
        m_book->save(connection);
    connection.isCheckpointDue = false;
    if (connection.isStateDue)
        later(this, [this, state = stateOf(connection)] { emit stateChanged(state); });
    connection.isStateDue = false;
}

void ConnectionRecorder::tick()
{
    m_ticks = (m_ticks + 1) % ticksPerCheckpoint;
    const bool isCheckpoint = m_ticks == 0 || m_book->isLate();
    if (isCheckpoint) {
        m_book->catchUp();
        keepIdleCounters();
    }
    for (auto &entry : m_live) {
        entry.second.isStateDue = true;
        entry.second.isCheckpointDue |= isCheckpoint;
    }
    requestCounters();
}

/// Of what is watched and up even without a connection: the next one begins
/// with the counters known last, which must not be old then.
void ConnectionRecorder::requestCounters()
{
    for (const Link &link : m_links->links()) {
        if (m_live.count(link.index) != 0 || (link.isUp && isWatched(link)))
            m_links->requestCounters(link.index);
    }
}

std::vector<FirstSight> ConnectionRecorder::firstSights() const
{
    const Moment moment = now();
    const std::int64_t bootUtc = moment.utcSeconds - moment.bootMilliseconds / 1000;
    std::vector<FirstSight> sights;
    for (const Link &link : m_linksAtStart) {
        if (isWatched(link))
            sights.push_back({seen(link), link.isConnected() ? link.idleCounters : link.counters,
                              bootUtc, profileFor(link.name)});
    }
    return sights;
}

history::SeenLink ConnectionRecorder::seen(const Link &link) const
{
    return {m_bootId,
            link.index,
            link.name,
            link.counters.uploaded,
            link.counters.downloaded,
            storableSeconds(m_clock->utcSeconds())};
}

std::vector<history::SeenLink> ConnectionRecorder::idleLinks() const
{
    std::vector<history::SeenLink> idle;
    for (const Link &link : m_links->links()) {
        if (m_live.count(link.index) == 0 && isWatched(link))
            idle.push_back(seen(link));
    }
    return idle;
}

/// What a link moves without a connection must not be taken later for what it moved
/// while nothing recorded.
void ConnectionRecorder::keepIdleCounters()
{
    std::vector<history::SeenLink> idle = idleLinks();
    const bool isKept =
        std::equal(idle.begin(), idle.end(), m_keptIdle.begin(), m_keptIdle.end(), showTheSame);
    if (!isKept && m_book->see(idle))
        m_keptIdle = std::move(idle);
}

bool ConnectionRecorder::isWatched(const Link &link) const
{
    const auto isItsName = [&link](const QString &name) {
        return link.hasName(name.toStdString());
    };
    return link.isMobile() ||
           std::any_of(m_interfaceNames.begin(), m_interfaceNames.end(), isItsName) ||
           m_resumedLinks.count(link.index) != 0;
}

/// Asked late if the store was locked in the beginning: what was connected then and
/// has ended since waits to go on with the row.
bool ConnectionRecorder::stillLasts(const history::OpenConnection &row)
{
    const Link *const link = linkOf(row, m_linksAtStart);
    if (!link)
        return false;
    if (isWatched(*link))
        return true;
    // Renamed meanwhile, or watched only by the process before.
    if (!linkOf(row, m_links->links()))
        return false;
    m_resumedLinks.insert(link->index);
    return true;
}

std::string ConnectionRecorder::profileFor(const std::string &interfaceName) const
{
    return m_profileName.isEmpty() ? interfaceName : m_profileName.toStdString();
}

ConnectionState ConnectionRecorder::stateOf(LiveConnection &connection) const
{
    const history::OpenConnection &row = connection.row();
    const LinkCounters rate = connection.takeRate(now());
    ConnectionState state;
    state.id = connection.id();
    state.profile = QString::fromStdString(row.profile);
    state.interfaceName = QString::fromStdString(row.interfaceName);
    state.since = QDateTime::fromSecsSinceEpoch(row.startUtc).toUTC();
    state.uploadedBytes = row.uploadedBytes;
    state.downloadedBytes = row.downloadedBytes;
    state.uploadRate = rate.uploaded;
    state.downloadRate = rate.downloaded;
    return state;
}

Moment ConnectionRecorder::now() const
{
    return {m_clock->utcSeconds(), m_clock->bootMilliseconds()};
}

} // namespace recorder
