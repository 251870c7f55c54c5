// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QStringList>

/// What it says first, if it can record.
const QByteArray recording("connrecord: Recording connections.\n");

/// The program as it records, with what it has said.
class RecordingProgram
{
public:
    using Environment = QMap<QString, QString>;

    /// In the test's own environment, but with these instead; without them, no service
    /// manager and no session bus is there.
    explicit RecordingProgram(const QStringList &arguments, const Environment &environment = {});
    ~RecordingProgram();

    QByteArray said();
    qint64 process() const { return m_process.processId(); }
    /// What it ends with after the signal, -1 if it does not.
    int exitCodeAfter(int signal);

private:
    QProcess m_process;
    QByteArray m_said;
};
