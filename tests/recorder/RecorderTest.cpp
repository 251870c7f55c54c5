// SPDX-License-Identifier: MIT
#include "RecorderTest.h"

#include <SQLiteCpp/Database.h>

using history::Connection;
using history::OpenConnection;
using history::Store;
using recorder::ConnectionRecorder;

OpenConnection rowOf(const std::string &bootId, int linkIndex)
{
    OpenConnection row;
    row.bootId = bootId;
    row.interfaceIndex = linkIndex;
    row.interfaceName = "wwan0";
    row.profile = "internet";
    row.linkMark = "0/100"; // as FakeLinks make it
    row.startUtc = 1699999000;
    row.startBootMilliseconds = 4000000;
    row.baseUploaded = 10;
    row.baseDownloaded = 20;
    row.uploadedBytes = 100;
    row.downloadedBytes = 200;
    row.updatedUtc = 1699999900;
    row.connectedSeconds = 900;
    return row;
}

void RecorderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_atStart.clear();
    m_clockAtStart = FakeClock();
}

void RecorderTest::cleanup()
{
    m_recorder.reset();
    m_folder.reset();
}

bool RecorderTest::start(const QStringList &interfaceNames)
{
    auto links = std::make_unique<FakeLinks>();
    auto clock = std::make_unique<FakeClock>(m_clockAtStart);
    auto ports = std::make_unique<FakePorts>();
    m_links = links.get();
    m_clock = clock.get();
    m_ports = ports.get();
    m_links->atStart = m_atStart;
    m_recorder =
        std::make_unique<ConnectionRecorder>(m_path, interfaceNames, std::move(links),
                                             std::move(ports), std::move(clock), shortIntervals);
    m_connections = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::connected);
    m_disconnections =
        std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::disconnected);
    m_failures = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::failed);
    return m_recorder->start();
}

void RecorderTest::connectLink(int index, const std::string &name, std::int64_t uploaded,
                               std::int64_t downloaded)
{
    m_links->tell(downLink(index, name, uploaded, downloaded));
    m_links->tell(addressOn(index));
    m_links->tell(runningLink(index, name, uploaded, downloaded));
}

void RecorderTest::addRow(const OpenConnection &row)
{
    auto store = Store::openOrCreate(m_path.toStdString());
    QVERIFY(store);
    QVERIFY(store.value().begin(row));
}

void RecorderTest::changeRow(int interfaceIndex, const QString &change)
{
    const QString update =
        QStringLiteral("UPDATE open_connection SET %1 WHERE interface_index = %2")
            .arg(change)
            .arg(interfaceIndex);
    SQLite::Database(m_path.toStdString(), SQLite::OPEN_READWRITE).exec(update.toStdString());
}

Connection RecorderTest::firstRecord()
{
    const auto store = Store::openForReading(m_path.toStdString());
    const auto list = store.value().list();
    return list.value().empty() ? Connection() : list.value().front();
}
