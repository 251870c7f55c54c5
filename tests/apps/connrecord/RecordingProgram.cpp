// SPDX-License-Identifier: MIT
#include "RecordingProgram.h"

#include "ConnrecordRun.h"

#include <sys/types.h>

#include <csignal>

namespace
{

/// What leads to the services of whoever runs the test.
const QStringList surroundings = {QStringLiteral("NOTIFY_SOCKET"),
                                  QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                                  QStringLiteral("XDG_RUNTIME_DIR")};

} // namespace

RecordingProgram::RecordingProgram(const QStringList &arguments, const Environment &environment)
{
    QProcessEnvironment whole = QProcessEnvironment::systemEnvironment();
    for (const QString &name : surroundings)
        whole.remove(name);
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        whole.insert(variable.key(), variable.value());
    m_process.setProcessEnvironment(whole);
    m_process.start(connrecordProgram(), arguments);
}

RecordingProgram::~RecordingProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

QByteArray RecordingProgram::said()
{
    m_said += m_process.readAllStandardError();
    return m_said;
}

int RecordingProgram::exitCodeAfter(int signal)
{
    kill(pid_t(m_process.processId()), signal);
    const bool hasExited =
        m_process.waitForFinished() && m_process.exitStatus() == QProcess::NormalExit;
    return hasExited ? m_process.exitCode() : -1;
}
