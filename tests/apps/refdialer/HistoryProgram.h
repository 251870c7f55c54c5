// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

/// A program that may record into a history, running or not.
class HistoryProgram
{
public:
    enum class Kind { Window, WindowWithoutBus, Background };

    /// Milliseconds that one may take for what it has to do.
    static constexpr int patience = 60000;

    HistoryProgram(Kind kind, const QString &store, const QString &bus);
    HistoryProgram(const HistoryProgram &) = delete;
    HistoryProgram &operator=(const HistoryProgram &) = delete;
    ~HistoryProgram();

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    qint64 process() const { return m_process.processId(); }

    bool start();
    /// False if it ended in another way than by the signal, or as its user ends it: a second
    /// window of a history on a bus ends by itself.
    bool end(int signal);

private:
    const bool m_isWindow;
    QStringList m_arguments;
    QProcess m_process;
};
