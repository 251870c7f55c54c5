// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

/// A process that works on a store when it is told to; it ends with this object.
class StorePeer
{
public:
    StorePeer();
    ~StorePeer();
    StorePeer(const StorePeer &) = delete;
    StorePeer &operator=(const StorePeer &) = delete;

    /// Sends a command with its arguments and returns the line it answers, "ok",
    /// "ok VALUE" or "failed REASON".
    QString tell(const QString &command);

    /// Ends the process at once, as a crash would.
    void kill();

    /// The two halves of it, for several processes that work at once.
    void send(const QString &command);
    QString answer();
    bool hasAnswered();

private:
    QProcess m_process;
};
