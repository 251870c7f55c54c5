// SPDX-License-Identifier: MIT
#include "Benchmarks.h"
#include "PluginWindow.h"

#include <QByteArray>
#include <QDebug>
#include <QLoggingCategory>
#include <QVector>

#include <fcntl.h>
#include <unistd.h>

namespace
{

/// While it lives, debug output is on, and what is written to the standard error is gone.
class DebugOutput
{
public:
    DebugOutput()
        : m_usualOutput(dup(STDERR_FILENO))
    {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    }
    ~DebugOutput()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        dup2(m_usualOutput, STDERR_FILENO);
        close(m_usualOutput);
    }
    Q_DISABLE_COPY(DebugOutput)

private:
    const int m_usualOutput;
};

QVector<QByteArray> lines;

void keepLine(QtMsgType, const QMessageLogContext &, const QString &line)
{
    lines.append(line.toUtf8());
}

/// The lines of an Init with so many records.
void collectLines(int records)
{
    const DebugOutput output;
    PluginWindow window(records);
    const auto usualHandler = qInstallMessageHandler(keepLine);
    window.init();
    qInstallMessageHandler(usualHandler);
}

void initLogged(benchmark::State &state, int records)
{
    for ([[maybe_unused]] auto iteration : state) {
        const DebugOutput output;
        PluginWindow window(records);
        measure(state, [&] { window.init(); });
    }
}

void writeLines(benchmark::State &state, int records)
{
    collectLines(records);
    const DebugOutput output;
    for ([[maybe_unused]] auto iteration : state) {
        measure(state, [] {
            for (const QByteArray &line : lines)
                qDebug("%s", line.constData());
        });
    }
    state.counters["lines"] = static_cast<double>(lines.size());
    lines.clear();
}

} // namespace

void registerLogBenchmarks(const Sizes &sizes)
{
    const int records = sizes.loggedRecords;
    registerOnce("log/init/" + std::to_string(records),
                 [records](benchmark::State &state) { initLogged(state, records); });
    registerOnce("log/lines/" + std::to_string(records),
                 [records](benchmark::State &state) { writeLines(state, records); });
}
