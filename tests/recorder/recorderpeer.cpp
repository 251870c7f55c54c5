// SPDX-License-Identifier: MIT
#include "recorder/ConnectionRecorder.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdio>

/// recorderpeer STORE: records until it is killed or its input ends, and says
/// "connected" whenever a connection begins.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    recorder::ConnectionRecorder recorder(QCoreApplication::arguments().value(1));
    QObject::connect(&recorder, &recorder::ConnectionRecorder::connected, &recorder, [] {
        std::puts("connected");
        std::fflush(stdout);
    });
    QObject::connect(&recorder, &recorder::ConnectionRecorder::failed, &recorder,
                     [](const recorder::Problem &problem) {
                         qWarning("%d: %s", int(problem.kind), qPrintable(problem.reason));
                     });
    const QSocketNotifier inputEnd(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&inputEnd, &QSocketNotifier::activated, &QCoreApplication::quit);
    recorder.start();
    return QCoreApplication::exec();
}
