// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionRecorder.h"

#include <QList>
#include <QMap>
#include <QObject>

namespace refdialer
{

/// What is known of the mobile connections at the moment, for the window. It is
/// told by the recorder and lives on the GUI thread.
class LineState : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether connections are watched at all.
    bool isWatched() const { return m_isWatched; }
    /// Those that last, in the order in which they began.
    QList<recorder::ConnectionState> connections() const { return m_connections.values(); }
    /// Why connections are not recorded as they should be, a sentence for the
    /// user; empty if they are.
    QString problem() const { return m_problem; }

    void setWatched(bool isWatched);
    void begin(const recorder::ConnectionState &connection);
    void update(const recorder::ConnectionState &connection);
    void end(qint64 id);
    /// With an empty text it is over.
    void setProblem(const QString &problem);

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
};

} // namespace refdialer
