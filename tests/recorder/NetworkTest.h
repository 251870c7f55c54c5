// SPDX-License-Identifier: MIT
#pragma once

#include "NetworkNamespace.h"
#include "RecordText.h"
#include "VethPair.h"
#include "recorder/ConnectionRecorder.h"

#include <QCoreApplication>
#include <QObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

/// The record of a connection as textOf() has it.
QString record(const char *interfaceName, qint64 uploaded, qint64 downloaded,
               const char *ending = "normal");

/// A recorder and a line of its own for each test function, in a network of this
/// process's own.
class NetworkTest : public QObject
{
    Q_OBJECT

public:
    /// Skips everything if there is an obstacle.
    explicit NetworkTest(const QString &obstacle);

private slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    bool startRecorder(const QStringList &interfaceNames = {});
    /// With the device types in this folder instead of the system's.
    bool startWithDeviceTypes(const QString &folder);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::unique_ptr<recorder::ConnectionRecorder> m_recorder;
    std::unique_ptr<QSignalSpy> m_connections;
    std::unique_ptr<QSignalSpy> m_disconnections;
    std::unique_ptr<QSignalSpy> m_failures;

private:
    bool start(std::unique_ptr<recorder::ConnectionRecorder> recorder);

    const QString m_obstacle;
};

/// As QTEST_GUILESS_MAIN, in a network of its own: that has to be entered while the
/// process has one thread only.
#define NETWORK_TEST_MAIN(Test)                                                                    \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        const QString obstacle = enterNetworkNamespace();                                          \
        const QCoreApplication application(argc, argv);                                            \
        Test test(obstacle);                                                                       \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
