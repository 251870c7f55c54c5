// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionRecorder.h"
#include "recorder/bus/RecorderClient.h"

#include <QList>
#include <QMap>
#include <QObject>

namespace refdialer
{

/// What is known of the mobile connections at the moment, for the window: from its own
/// recorder while that records, else from one that it follows. It lives on the GUI thread.
class LineState : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether connections are watched at all.
    bool isWatched() const { return m_isWatched || isFollowing(); }
    /// Whether this program records them.
    bool isRecording() const { return m_isWatched; }
    /// Whether another program does.
    bool isFollowing() const { return !m_isWatched && m_followed.isRecording; }
    /// Those that last, in the order in which they began.
    QList<recorder::ConnectionState> connections() const;
    /// Why connections are not recorded as they should be, a sentence for the
    /// user; empty if they are.
    QString problem() const { return isFollowing() ? m_followed.problem : m_problem; }

    // What this program's own recorder does.

    /// One that does not record has no connections.
    void setWatched(bool isWatched);
    void begin(const recorder::ConnectionState &connection);
    void update(const recorder::ConnectionState &connection);
    void end(qint64 id);
    /// With an empty text it is over.
    void setProblem(const QString &problem);

    // What another program's recorder does.

    void follow(const recorder::RecorderState &recorder);
    void endFollowed();

signals:
    void connected();
    /// The connection is finished in the store already.
    void disconnected();
    /// Any of the above, or new figures.
    void changed();

private:
    bool m_isWatched = false;
    QMap<qint64, recorder::ConnectionState> m_connections; ///< by id
    QString m_problem;
    recorder::RecorderState m_followed;
};

} // namespace refdialer
