// SPDX-License-Identifier: MIT
#include "ConnectionRecorder.h"

#include <QCoreApplication>

#include <cstdio>

/// recorderpeer STORE: records until it is killed, and says "connected" whenever
/// a connection begins.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    refhost::ConnectionRecorder recorder(QCoreApplication::arguments().value(1));
    QObject::connect(&recorder, &refhost::ConnectionRecorder::connected, &recorder, [] {
        std::puts("connected");
        std::fflush(stdout);
    });
    QObject::connect(&recorder, &refhost::ConnectionRecorder::failed, &recorder,
                     [](const QString &reason) { qWarning("%s", qPrintable(reason)); });
    recorder.start();
    return QCoreApplication::exec();
}
