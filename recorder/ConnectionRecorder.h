// SPDX-License-Identifier: MIT
#pragma once

#include "LockPatience.h"
#include "history/Store.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace recorder
{

class LinkSource;
class LiveConnection;
class RecordBook;
class RecorderLock;
class SystemClock;
struct Link;
struct LinkChange;
struct FirstSight;
struct LinkCounters;
struct Moment;

/// A connection that lasts, as it is at the moment.
struct ConnectionState {
    qint64 id = 0; ///< of this connection alone
    QString profile;
    QString interfaceName;
    QDateTime since; ///< in UTC
    qint64 uploadedBytes = 0;
    qint64 downloadedBytes = 0;
    qint64 uploadRate = 0; ///< bytes per second since the last report
    qint64 downloadRate = 0;
};

/// How often a recorder does what nothing from outside sets off.
struct RecorderIntervals {
    /// From tick to tick: it asks for counters and tries again what it could not write.
    /// With every fourth one, the store is brought up to date: it is to be at most five
    /// seconds behind, and the kernel's answer and the writing take their time too.
    std::chrono::milliseconds tick = std::chrono::seconds(1);
    std::chrono::milliseconds retry = std::chrono::seconds(2); ///< of the start
};

/// Records the connections of mobile interfaces (see Link::isMobile) and of those
/// that are named, by whichever of their names, to the byte: an interface is connected while it is
/// up, running and has an address (see Link::isConnected). Its record lies in the store from the
/// first moment, is never more than five seconds behind and gets the kernel's
/// final counters at the end. Connections that an earlier process left open are
/// gone on with if their link is still connected, else closed at their last
/// update and marked "recovered".
///
/// An interface of that index is one link: one that is renamed stays the same,
/// one that is made anew under the same name is another. Start and end are the
/// wall clock's; if that was set back behind the start meanwhile, the end is the
/// start plus the time connected, which is measured by a clock that never jumps
/// and counts suspend.
///
/// Of several recorders for one store the first one records; when it ends, another
/// one goes on with what is connected.
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
    /// The same with another source of news about links, other clocks and intervals.
    ConnectionRecorder(const QString &storePath, const QStringList &interfaceNames,
                       std::unique_ptr<LinkSource> links, std::unique_ptr<SystemClock> clock,
                       const RecorderIntervals &intervals = {}, QObject *parent = nullptr);
    /// Leaves what is connected open in the store, as it is at this moment, for the
    /// next start to go on with.
    ~ConnectionRecorder() override;

public slots:
    /// Opens the store, settles what earlier processes left open, and begins to
    /// watch; false, with failed(), if that is not possible. Then it is tried again
    /// every other second until there is started(). To be called once.
    bool start();

    /// Names the profile of present and coming connections; with an empty name,
    /// as in the beginning, each bears its interface's.
    void setProfileName(const QString &name);

signals:
    /// It could not start in the beginning, or had to stop, and has started now.
    void started();
    void connected(const recorder::ConnectionState &state);
    /// The connection is finished in the store already; `id` is its state's, or 0 if
    /// an earlier process had left it open and start() could not settle that yet.
    void disconnected(const history::Connection &connection, qint64 id);
    /// Once a second for each connection that lasts.
    void stateChanged(const recorder::ConnectionState &state);
    /// One sentence for the user. What could not be written is kept and tried
    /// again; each reason is told once.
    void failed(const QString &reason);
    /// What could not be written is in the store now, or it records what it could not
    /// record at all.
    void succeeded();

private:
    bool tryToStart();
    void tryAgain();
    void handleChange(const LinkChange &change);
    void handleLiveChange(LiveConnection &connection, const LinkChange &change);
    void checkClock();
    void begin(const Link &link, const LinkCounters &base);
    void finish(LiveConnection &connection, bool hasFinalCounters);
    void report(LiveConnection &connection);
    void tick();
    void requestCounters();
    std::vector<FirstSight> firstSights() const;
    history::SeenLink seen(const Link &link) const;
    std::vector<history::SeenLink> idleLinks() const;
    void keepIdleCounters();
    bool openBook();
    bool isWatched(const Link &link) const;
    bool stillLasts(const history::OpenConnection &row);
    QString knownPath() const;
    bool lockStore();
    static QString recordedByAnother(const RecorderLock &lock);
    void giveUp();
    void fail(const QString &reason);
    void obstruct(const QString &reason);
    void removeObstacle();
    void stop(const QString &reason);
    void catchUpWithLinks();
    std::string profileFor(const std::string &interfaceName) const;
    ConnectionState stateOf(LiveConnection &connection) const;
    Moment now() const;

    const QString m_storePath;
    const QStringList m_interfaceNames;
    QString m_profileName;
    LinkSource *const m_links; ///< a child
    const std::unique_ptr<SystemClock> m_clock;
    std::unique_ptr<RecorderLock> m_lock;
    std::unique_ptr<RecordBook> m_book;
    std::map<int, LiveConnection> m_live; ///< by the link's index
    std::vector<Link> m_linksAtStart;
    std::set<int> m_resumedLinks;              ///< watched for the connection that they have
    std::vector<history::SeenLink> m_keptIdle; ///< what the store knows of links without one
    std::string m_bootId;
    LockPatience m_patience;
    std::optional<std::int64_t> m_standIn; ///< for what the clock shows
    QString m_obstacle;                    ///< why it cannot record, as it was told last
    bool m_isLate = false;
    QTimer m_timer;
    QTimer m_retryTimer;
    int m_ticks = 0;
    std::int64_t m_lastId = 0;
};

} // namespace recorder

Q_DECLARE_METATYPE(history::Connection)
Q_DECLARE_METATYPE(recorder::ConnectionState)
