// SPDX-License-Identifier: MIT
#include "ConnectionRecorder.h"

#include "LinkMonitor.h"
#include "RecorderLock.h"
#include "RecordingSession.h"
#include "SystemClock.h"
#include "modem/Modems.h"

#include <utility>

namespace recorder
{

namespace
{

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
                         std::make_unique<modem::Modems>(), std::make_unique<SystemClock>(),
                         RecorderIntervals(), parent)
{
}

ConnectionRecorder::ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames,
                                       std::unique_ptr<LinkSource> links,
                                       std::unique_ptr<modem::PortSource> ports,
                                       std::unique_ptr<SystemClock> clock,
                                       const RecorderIntervals &intervals, QObject *parent)
    : QObject(parent)
    , m_storePath(storePath)
    , m_interfaceNames(interfaceNames)
    , m_links(links.release())
    , m_ports(ports.release())
    , m_clock(std::move(clock))
    , m_intervals(intervals)
    , m_ticks(intervals.tick, intervals.ticksPerCheckpoint, this)
    , m_retryTimer(this)
{
    qRegisterMetaType<history::Connection>();
    qRegisterMetaType<recorder::ConnectionState>();
    qRegisterMetaType<recorder::Problem>();
    m_links->setParent(this);
    m_ports->setParent(this);
    connect(m_ports, &modem::PortSource::changed, this, &ConnectionRecorder::handlePort);
    connect(m_ports, &modem::PortSource::availabilityChanged, this,
            &ConnectionRecorder::handleAllPorts);
    connect(m_links, &LinkSource::failed, this, &ConnectionRecorder::stop);
    connect(&m_ticks, &Ticks::ticked, this, &ConnectionRecorder::tick);
    connect(&m_retryTimer, &QTimer::timeout, this, &ConnectionRecorder::tryAgain);
}

ConnectionRecorder::~ConnectionRecorder()
{
    end();
}

std::optional<Problem> ConnectionRecorder::end()
{
    m_retryTimer.stop();
    const bool wasRecording = std::exchange(m_isRecording, false);
    auto loss = wasRecording ? m_session->leave() : std::nullopt;
    giveUp();
    return loss;
}

bool ConnectionRecorder::start()
{
    const bool hasStarted = tryToStart();
    m_isLate = true;
    m_ports->start();
    if (!hasStarted)
        m_retryTimer.start(m_intervals.retry);
    return hasStarted;
}

void ConnectionRecorder::tryAgain()
{
    if (tryToStart())
        m_retryTimer.stop();
    else
        m_retryTimer.start(m_intervals.retry);
}

void ConnectionRecorder::tryNow()
{
    if (m_retryTimer.isActive())
        tryAgain();
}

bool ConnectionRecorder::tryToStart()
{
    if (isAnothersTurn() || !openSession() || !lockStore() || !m_links->start()) {
        giveUp();
        return false;
    }
    removeObstacle();
    m_session->begin();
    connect(m_links, &LinkSource::linkChanged, this, &ConnectionRecorder::handleChange);
    m_ticks.start();
    m_isRecording = true;
    return true;
}

/// Who waits for another recorder to end opens the store only then.
bool ConnectionRecorder::isAnothersTurn()
{
    return m_obstacle && m_obstacle->kind == Problem::Kind::RecordedByAnother && !lockStore();
}

void ConnectionRecorder::handleChange(const LinkChange &change)
{
    m_session->handleChange(change);
    tickIfBusy();
}

void ConnectionRecorder::handlePort(const QString &interfaceName)
{
    if (!m_isRecording)
        return;
    m_session->handlePort(interfaceName);
    tickIfBusy();
}

void ConnectionRecorder::tickIfBusy()
{
    if (!m_ticks.areRunning() && m_session->isBusy())
        m_ticks.start();
}

void ConnectionRecorder::handleAllPorts()
{
    const modem::PortSource::Ports ports = m_ports->ports();
    for (const auto &port : ports)
        handlePort(port.first);
}

void ConnectionRecorder::tick(bool isCheckpoint)
{
    m_session->tick(isCheckpoint);
    if (!m_session->isBusy())
        m_ticks.stop();
}

/// Who does not record or does not see the links must not settle what is open, for
/// another recorder may be at it.
void ConnectionRecorder::giveUp()
{
    m_ticks.stop();
    disconnect(m_links, &LinkSource::linkChanged, this, &ConnectionRecorder::handleChange);
    m_session.reset();
    m_lock.reset();
}

bool ConnectionRecorder::openSession()
{
    const std::string bootId = currentBootId();
    if (bootId.empty()) {
        Problem problem;
        problem.kind = Problem::Kind::BootIdUnreadable;
        obstruct(problem);
        return false;
    }
    auto store = history::Store::openForRecording(m_storePath.toStdString());
    if (!store) {
        if (m_patience.isWorthTelling(store.error(), m_clock->bootMilliseconds()))
            obstruct(historyProblem(store.error()));
        return false;
    }
    m_patience.renew();
    m_session = std::make_unique<RecordingSession>(
        std::move(store.value()), knownPath(), bootId, m_interfaceNames, m_profileName,
        RecordingSession::Surroundings{*m_links, *m_ports, *m_clock, m_lastId}, listener());
    return true;
}

SessionListener ConnectionRecorder::listener()
{
    SessionListener listener;
    listener.connected = [this](const ConnectionState &state) {
        later(this, [this, state] { emit connected(state); });
    };
    listener.disconnected = [this](const history::Connection &connection, std::int64_t id) {
        later(this, [this, connection, id] { emit disconnected(connection, id); });
    };
    // Who asks for the history after start() finds it there.
    listener.recovered = [this](const history::Connection &connection) {
        if (m_isLate)
            later(this, [this, connection] { emit disconnected(connection, 0); });
    };
    listener.stateChanged = [this](const ConnectionState &state) {
        later(this, [this, state] { emit stateChanged(state); });
    };
    listener.saved = [this] { later(this, [this] { emit checkpointWritten(); }); };
    listener.failed = [this](const Problem &problem) { fail(problem); };
    listener.succeeded = [this] { later(this, [this] { emit succeeded(); }); };
    return listener;
}

/// The same for all recorders, by whichever of its names the store was opened.
QString ConnectionRecorder::knownPath() const
{
    return recorder::knownPath(m_storePath);
}

bool ConnectionRecorder::lockStore()
{
    if (m_lock)
        return true;
    m_lock = std::make_unique<RecorderLock>(knownPath());
    const bool isTaken = m_lock->take() == RecorderLock::Outcome::Taken;
    if (!isTaken)
        obstruct(m_lock->problem());
    return isTaken;
}

void ConnectionRecorder::fail(const Problem &problem)
{
    later(this, [this, problem] { emit failed(problem); });
}

/// Told once, however often it is met.
void ConnectionRecorder::obstruct(const Problem &problem)
{
    if (problem == m_obstacle)
        return;
    m_obstacle = problem;
    fail(problem);
}

void ConnectionRecorder::removeObstacle()
{
    if (!m_isLate)
        return;
    const bool wasTold = m_obstacle.has_value();
    m_obstacle.reset();
    later(this, [this, wasTold] {
        if (wasTold)
            emit succeeded();
        emit started();
    });
}

/// The lock is free then for whoever can see the links.
void ConnectionRecorder::stop(const Problem &problem)
{
    obstruct(problem);
    if (!m_isRecording)
        return;
    pause(m_session->endAll());
    m_retryTimer.start(m_intervals.retry);
}

/// Nothing is wrong then, so nothing is told, unless it turns out who records instead.
void ConnectionRecorder::makeWay()
{
    if (!m_isRecording && !m_retryTimer.isActive())
        return;
    if (m_isRecording) {
        pause(m_session->leave());
        m_obstacle.emplace().kind = Problem::Kind::RecordedByAnother;
    }
    m_retryTimer.start(m_intervals.courtesy);
}

void ConnectionRecorder::pause(const std::optional<Problem> &loss)
{
    m_isRecording = false;
    if (loss)
        fail(*loss);
    giveUp();
    later(this, [this] { emit stopped(); });
}

void ConnectionRecorder::setProfileName(const QString &name)
{
    m_profileName = name;
    if (m_session)
        m_session->setProfileName(name);
}

} // namespace recorder
