// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionState.h"
#include "recorder/Problem.h"
#include "recorder/bus/Throttle.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <chrono>
#include <functional>

namespace history
{
struct Connection;
}

namespace recorder
{

class ConnectionRecorder;

/// What a bus sees of a recorder: the properties, methods and signals that docs/dbus.md
/// describes, by the names that they have there.
class RecorderObject : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_PROPERTY(bool Recording READ isRecording)
    Q_PROPERTY(bool Waiting READ isWaiting)
    Q_PROPERTY(QString Problem READ problem)
    Q_PROPERTY(QString History READ history)
    Q_PROPERTY(QList<QVariantMap> Connections READ connections)

public:
    /// `problemText` makes the sentence for a problem that the program shows too.
    RecorderObject(ConnectionRecorder &recorder, const QString &storePath,
                   std::function<QString(const Problem &)> problemText,
                   std::chrono::milliseconds interval);

    static QString interfaceName();
    static QString objectPath();

    bool isRecording() const { return m_isRecording; }
    bool isWaiting() const { return m_isWaiting; }
    QString problem() const { return m_problem; }
    QString history() const { return m_history; }
    QList<QVariantMap> connections() const { return m_connections.values(); }

    /// Whether anybody wants to be told of the connections' figures.
    void setWatched(bool isWatched) { m_isWatched = isWatched; }

    // Called over the bus.
    void Watch() { emit watched(message().service()); }
    void Unwatch() { emit unwatched(message().service()); }

signals:
    void recordingChanged();
    void waitingChanged();
    void watched(const QString &client);
    void unwatched(const QString &client);
    /// A signal for the bus.
    void told(const QDBusMessage &signal);

private:
    void begin(const ConnectionState &state);
    void update(const ConnectionState &state);
    void end(const history::Connection &connection, qint64 id);
    void setProblem(const Problem &problem);
    void removeProblem();
    void updateRecording();
    void forgetConnections();
    void noteChange(const char *property);
    void noteChangeOfConnections();
    void tellChanges();
    void tell(const char *signal, const QVariantList &arguments = {});

    ConnectionRecorder &m_recorder;
    const std::function<QString(const Problem &)> m_problemText;
    const QString m_history;
    bool m_isRecording;
    bool m_isWaiting = false;
    bool m_isAnotherRecording = false; ///< is the last problem
    QString m_problem;
    QMap<qint64, QVariantMap> m_connections; ///< by id
    bool m_isWatched = false;
    QSet<QByteArray> m_changes; ///< of properties, that have not been told yet
    bool m_hasHistoryChanged = false;
    Throttle m_throttle;
};

} // namespace recorder
