// SPDX-License-Identifier: MIT
#include "HistoryProgram.h"

#include "ConnrecordRun.h"

#include <csignal>

HistoryProgram::HistoryProgram(Kind kind, const QString &store, const QString &bus)
    : m_isWindow(kind != Kind::Background)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_CONFIG_HOME", store + ".settings");
    environment.insert("DBUS_SESSION_BUS_ADDRESS",
                       kind == Kind::WindowWithoutBus ? QStringLiteral("disabled:") : bus);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_arguments = QStringList{"--store", store};
    if (!m_isWindow)
        m_arguments.append("record");
}

HistoryProgram::~HistoryProgram()
{
    end(SIGKILL);
}

bool HistoryProgram::start()
{
    m_process.start(m_isWindow ? QStringLiteral(REFDIALER) : connrecordProgram(), m_arguments);
    return m_process.waitForStarted();
}

bool HistoryProgram::end(int signal)
{
    if (!isRunning())
        return true;
    kill(pid_t(process()), signal);
    if (!m_process.waitForFinished(patience))
        return false;
    const bool isProper = m_process.exitStatus() == QProcess::NormalExit
                              ? m_process.exitCode() == 0
                              : m_process.exitCode() == signal;
    if (!isProper)
        qWarning("%s", m_process.readAll().constData());
    return isProper;
}
