// SPDX-License-Identifier: MIT
#include "NetworkTest.h"

#include "FakePorts.h"
#include "recorder/LinkMonitor.h"
#include "recorder/SystemClock.h"

using recorder::ConnectionRecorder;
using recorder::LinkMonitor;
using recorder::SystemClock;

QString record(const char *interfaceName, qint64 uploaded, qint64 downloaded, const char *ending)
{
    return QStringLiteral("%1 up %2 down %3 %4")
        .arg(QLatin1String(interfaceName))
        .arg(uploaded)
        .arg(downloaded)
        .arg(QLatin1String(ending));
}

NetworkTest::NetworkTest(const QString &obstacle)
    : m_obstacle(obstacle)
{
}

void NetworkTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void NetworkTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_line.emplace();
    QVERIFY(m_line->isMade());
    QVERIFY(startRecorder());
}

void NetworkTest::cleanup()
{
    if (m_failures)
        QVERIFY(m_failures->isEmpty());
    m_recorder.reset();
    m_line.reset();
    m_folder.reset();
}

bool NetworkTest::startRecorder(const QStringList &interfaceNames)
{
    return start(std::make_unique<ConnectionRecorder>(m_path, interfaceNames));
}

bool NetworkTest::startWithDeviceTypes(const QString &folder)
{
    return start(std::make_unique<ConnectionRecorder>(
        m_path, QStringList(), std::make_unique<LinkMonitor>(folder.toStdString()),
        std::make_unique<FakePorts>(), std::make_unique<SystemClock>()));
}

bool NetworkTest::start(std::unique_ptr<ConnectionRecorder> recorder)
{
    m_recorder = std::move(recorder);
    m_connections = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::connected);
    m_disconnections =
        std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::disconnected);
    m_failures = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::failed);
    return m_recorder->start();
}
