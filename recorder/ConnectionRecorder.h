// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionState.h"
#include "LockPatience.h"
#include "Problem.h"
#include "Ticks.h"
#include "history/Store.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

namespace modem
{
class PortSource;
}

namespace recorder
{

class LinkSource;
class RecorderLock;
class RecordingSession;
class SystemClock;
struct LinkChange;
struct SessionListener;

/// How often a recorder does what nothing from outside sets off.
struct RecorderIntervals {
    /// From tick to tick: it asks for counters and tries again what it could not write.
    std::chrono::milliseconds tick = std::chrono::seconds(1);
    std::chrono::milliseconds retry = std::chrono::seconds(2); ///< of the start
    /// With every so many ticks, the store is brought up to date: it is to be at most five
    /// seconds behind, and the kernel's answer and the writing take their time too. While
    /// nobody watches, only these ticks come.
    int ticksPerCheckpoint = 4;
    /// For how long the store is left to a recorder that way was made for.
    std::chrono::milliseconds courtesy = std::chrono::seconds(10);
};

/// Records the connections of mobile interfaces (see Link::isMobile), of modems' data ports
/// and of those that are named, by whichever of their names, to the byte: an interface is
/// connected while it is up, running and has an address (see Link::isConnected), unless it is
/// a modem's that no bearer uses. Its record lies in the store from the
/// first moment, is never more than five seconds behind what has been moved and gets the
/// kernel's final counters at the end. Nothing is written while nothing is moved, and while
/// no line is up nothing is done at all. Connections that an earlier process left open are
/// resumed if their link is still connected, else closed at their last update and marked
/// "recovered".
///
/// An interface of that index is one link: one that is renamed stays the same,
/// one that is made anew under the same name is another. Start and end are the
/// wall clock's; if that was set back behind the start meanwhile, the end is the
/// start plus the time connected, which is measured by a clock that never jumps
/// and counts suspend.
///
/// Of several recorders for one store the first one records; when it ends, another
/// one resumes what is connected.
///
/// Signals come from the event loop, never from within a call, one after the
/// other. Everything happens on the thread that the recorder lives in, which may
/// be one of its own (moveToThread before start()): a slow disk can block it. A store
/// that another program keeps locked is waited for a moment only and tried again with
/// each tick, so that what happens gets its time when it happens.
class ConnectionRecorder : public QObject
{
    Q_OBJECT

public:
    /// Records into the store at `storePath`. Does nothing before start().
    explicit ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames = {},
                                QObject *parent = nullptr);
    /// The same with other sources of news about links and modems, other clocks and intervals.
    ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames,
                       std::unique_ptr<LinkSource> links, std::unique_ptr<modem::PortSource> ports,
                       std::unique_ptr<SystemClock> clock, const RecorderIntervals &intervals = {},
                       QObject *parent = nullptr);
    /// As end(), without anybody who could be told.
    ~ConnectionRecorder() override;

    /// Leaves what is connected open in the store, as it is at this moment, for the
    /// next start to resume, and watches no more. What could not be kept, if anything.
    std::optional<Problem> end();

    bool isRecording() const { return m_isRecording; }

    /// Another recorder wants to record: leaves what is connected open, as end() does, and
    /// the store to that one for a while. If nobody has it then, it records again.
    void makeWay();
    /// Whether anybody wants to see what connections move at the moment, as in the beginning.
    void setWatched(bool isWatched) { m_ticks.setWatched(isWatched); }
    /// Who recorded may have ended: tries again now what is tried again from time to time.
    void tryNow();

public slots:
    /// Opens the store, settles what earlier processes left open, and begins to
    /// watch; false, with failed(), if that is not possible. Then it is tried again
    /// every other second until there is started(). To be called once.
    bool start();

    /// Names the profile of present and coming connections; with an empty name,
    /// as in the beginning, each bears its modem's APN or, without one, its interface's name.
    void setProfileName(const QString &name);

signals:
    /// It could not start in the beginning, or had stopped, and has started now.
    void started();
    /// It records nothing until it has started() again; what lasted then is told anew.
    void stopped();
    void connected(const recorder::ConnectionState &state);
    /// The connection is finished in the store already; `id` is its state's, or 0 if
    /// an earlier process had left it open and start() could not settle that yet.
    void disconnected(const history::Connection &connection, qint64 id);
    /// With each tick for each connection that lasts.
    void stateChanged(const recorder::ConnectionState &state);
    /// The store has learned something of a connection that lasts, mostly what it has moved.
    void checkpointWritten();
    /// What could not be written is kept and tried again; each problem is told once.
    void failed(const recorder::Problem &problem);
    /// What could not be written is in the store now, or it records what it could not
    /// record at all.
    void succeeded();

private:
    bool tryToStart();
    void tryAgain();
    bool openSession();
    bool lockStore();
    SessionListener listener();
    QString knownPath() const;
    void handleChange(const LinkChange &change);
    void handlePort(const QString &interfaceName);
    void handleAllPorts();
    void tick(bool isCheckpoint);
    void tickIfBusy();
    bool isAnothersTurn();
    void giveUp();
    void stop(const Problem &problem);
    void pause(const std::optional<Problem> &loss);
    void fail(const Problem &problem);
    void obstruct(const Problem &problem);
    void removeObstacle();

    const QString m_storePath;
    const QStringList m_interfaceNames;
    QString m_profileName;
    LinkSource *const m_links;        ///< a child
    modem::PortSource *const m_ports; ///< a child
    const std::unique_ptr<SystemClock> m_clock;
    std::unique_ptr<RecorderLock> m_lock;
    std::unique_ptr<RecordingSession> m_session; ///< while it records
    LockPatience m_patience;
    std::optional<Problem> m_obstacle; ///< why it cannot record, as it was told last
    bool m_isRecording = false;
    bool m_isLate = false; ///< the first start is over
    const RecorderIntervals m_intervals;
    Ticks m_ticks; ///< run while there is something to watch
    QTimer m_retryTimer;
    std::int64_t m_lastId = 0;
};

} // namespace recorder

Q_DECLARE_METATYPE(history::Connection)
