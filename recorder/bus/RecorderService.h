// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/Problem.h"
#include "recorder/bus/BusListeners.h"
#include "recorder/bus/BusName.h"

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace modem
{
class BusConnection;
}

namespace recorder
{

class ConnectionRecorder;
class HandOver;
class RecorderObject;

/// Tells programs on the session bus what a recorder does, as docs/dbus.md describes it;
/// none of them can change anything. The recorder waits for nobody there: a bus that is
/// not there, comes later, says nothing or dies is of no account to it.
///
/// The store's name on the bus (see nameFor) belongs to the one that records into it; of
/// several that cannot record, to the first.
///
/// Lives on the recorder's thread. It is made when the recorder has been started, before the
/// event loop runs again, and deleted before the recorder is; who ends the recorder first
/// lets others take over as soon as they miss the name.
class RecorderService : public QObject
{
    Q_OBJECT

public:
    using ProblemText = std::function<QString(const Problem &)>;

    /// A recorder in the foreground, which ends with a window of its user's, makes way for
    /// one in the background as soon as that comes. What one in the background records is
    /// watched only by who says so over the bus.
    enum class Place { Foreground, Background };

    /// For the store at `storePath`; `problemText` words problems as the program does. The
    /// bus gets news that are no events at most once in `interval`.
    RecorderService(ConnectionRecorder &recorder, const QString &storePath, Place place,
                    ProblemText problemText, const QString &busAddress = sessionBusAddress(),
                    std::chrono::milliseconds interval = std::chrono::seconds(1),
                    QObject *parent = nullptr);
    ~RecorderService() override;

    /// The name on the bus of who records into the store at this path.
    static QString nameFor(const QString &storePath);
    static QString objectPath();
    static QString interfaceName();

    /// On the bus; empty without one.
    QString uniqueName() const;

    /// An address on another computer is logged.
    void start();

private:
    void publish();
    void tellWhetherWatched();
    void renewName();
    void requestName();
    void updateClaim();

    ConnectionRecorder &m_recorder;
    const bool m_hasWindow;
    const QString m_busAddress;
    const QString m_name;
    const std::unique_ptr<modem::BusConnection> m_bus;
    const std::unique_ptr<RecorderObject> m_object;
    BusListeners m_listeners;
    const std::unique_ptr<HandOver> m_handOver;
};

} // namespace recorder
