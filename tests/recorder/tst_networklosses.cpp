// SPDX-License-Identifier: MIT
#include "Campaign.h"
#include "NetworkTest.h"
#include "StoreLock.h"
#include "TunDevice.h"

#include <QCoreApplication>
#include <QFile>

#include <ifaddrs.h>
#include <linux/if_link.h>
#include <sys/socket.h>

#include <cstring>
#include <optional>

using history::Connection;

namespace
{

/// Datagrams sent in one direction.
struct Volume {
    explicit Volume(campaign::Random &random)
        : count(random.below(12))
        , size(random.between(1, 1399))
    {
    }

    int count;
    int size;
};

/// What the kernel has counted on the interface, both ways.
qint64 countedBytesOf(const char *interfaceName)
{
    ifaddrs *all = nullptr;
    qint64 bytes = -1;
    if (getifaddrs(&all) != 0)
        return bytes;
    for (const ifaddrs *each = all; each; each = each->ifa_next) {
        if (!each->ifa_addr || each->ifa_addr->sa_family != AF_PACKET ||
            std::strcmp(each->ifa_name, interfaceName) != 0)
            continue;
        const auto *const counters = static_cast<const rtnl_link_stats *>(each->ifa_data);
        bytes = qint64{counters->tx_bytes} + counters->rx_bytes;
    }
    freeifaddrs(all);
    return bytes;
}

/// Switches the line on and sends these volumes; the record that this is to
/// leave, or nothing if the line did not do it.
template <typename Line>
QString useLine(const Line &line, const char *name, const Volume &up, const Volume &down)
{
    const bool isUsed =
        line.goUp() && line.upload(up.count, up.size) && line.download(down.count, down.size);
    return isUsed ? record(name, Line::bytesOf(up.count, up.size),
                           Line::bytesOf(down.count, down.size))
                  : QString();
}

} // namespace

class NetworkLossesTest : public NetworkTest
{
    Q_OBJECT

public:
    using NetworkTest::NetworkTest;

private slots:
    void tenShortSessionsLoseNothingAndInventNothing();
    void manyReconnectsLoseNothingAndInventNothing();
    void quitsRestartsAndLocksLoseNothingAndInventNothing();
    void reconnectsThatNobodyHadTimeToSeeAreRecordsOfTheirOwn();

private:
    /// A session of random volumes on a line that lives on, or on one that is
    /// deleted at its end; the record that it is to leave, or nothing on failure.
    QString reconnect(campaign::Random &random);
    /// One of all that can happen, at random; `pppBytes` is what ppp0 has moved in all.
    void happen(campaign::Random &random, qint64 &pppBytes);
    void moveBytes(campaign::Random &random);
    qint64 recordedBytesOf(const std::string &interfaceName) const;

    std::optional<StoreLock> m_lock;
};

void NetworkLossesTest::tenShortSessionsLoseNothingAndInventNothing()
{
    QStringList expected;
    for (int i = 1; i <= 10; ++i) {
        QVERIFY(m_line->goUp());
        QVERIFY(m_line->upload(i, 100 * i));
        QVERIFY(m_line->download(2 * i, 50 * i));
        QVERIFY(m_line->goDown());
        expected << record("wwan0", VethPair::bytesOf(i, 100 * i),
                           VethPair::bytesOf(2 * i, 50 * i));
    }
    QTRY_COMPARE(m_disconnections->size(), 10);
    QCOMPARE(recordsIn(m_path), expected);
}

QString NetworkLossesTest::reconnect(campaign::Random &random)
{
    const Volume up(random);
    const Volume down(random);
    if (random.once(2)) {
        const TunDevice device;
        if (device.isMade())
            return useLine(device, "ppp0", up, down);
    }
    const QString left = useLine(*m_line, "wwan0", up, down);
    return m_line->goDown() ? left : QString();
}

void NetworkLossesTest::manyReconnectsLoseNothingAndInventNothing()
{
    const int sessions = campaign::count(60);
    campaign::Random random(campaign::seed(1));
    QStringList expected;
    while (expected.size() < sessions) {
        expected << reconnect(random);
        QVERIFY(!expected.last().isEmpty());
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(int(m_disconnections->size()), sessions);
    QCOMPARE(recordsSeenBy(*m_disconnections), expected);
    expected.sort();
    QStringList stored = recordsIn(m_path);
    stored.sort();
    QCOMPARE(stored, expected);
}

void NetworkLossesTest::moveBytes(campaign::Random &random)
{
    const Volume up(random);
    const Volume down(random);
    if (!isRunning("wwan0"))
        QVERIFY(m_line->goUp());
    QVERIFY(m_line->upload(up.count, up.size));
    QVERIFY(m_line->download(down.count, down.size));
}

void NetworkLossesTest::happen(campaign::Random &random, qint64 &pppBytes)
{
    switch (random.below(7)) {
    case 0:
        return m_recorder.reset();
    case 1:
        if (!m_recorder)
            QVERIFY(startRecorder());
        return;
    case 2:
        if (m_lock)
            m_lock.reset();
        else
            m_lock.emplace(m_path);
        return;
    case 3:
        QVERIFY(m_line->goDown());
        return;
    case 4: {
        // What is deleted while nobody looks takes its counters with it.
        if (!m_recorder)
            return;
        const Volume up(random);
        const Volume down(random);
        const TunDevice device;
        QVERIFY(device.isMade());
        QVERIFY(!useLine(device, "ppp0", up, down).isEmpty());
        pppBytes +=
            TunDevice::bytesOf(up.count, up.size) + TunDevice::bytesOf(down.count, down.size);
        return;
    }
    default:
        moveBytes(random);
    }
}

qint64 NetworkLossesTest::recordedBytesOf(const std::string &interfaceName) const
{
    qint64 bytes = 0;
    for (const Connection &each : connectionsIn(m_path)) {
        if (each.interfaceName == interfaceName)
            bytes += each.uploadedBytes + each.downloadedBytes;
    }
    return bytes;
}

/// The kernel's counters are the witness.
void NetworkLossesTest::quitsRestartsAndLocksLoseNothingAndInventNothing()
{
    const int steps = campaign::count(100);
    campaign::Random random(campaign::seed(1));
    qint64 pppBytes = 0;
    for (int i = 0; i < steps && !QTest::currentTestFailed(); ++i) {
        happen(random, pppBytes);
        if (random.once(2))
            QCoreApplication::processEvents();
    }
    m_lock.reset();
    if (!m_recorder)
        QVERIFY(startRecorder());
    QVERIFY(m_line->goDown());
    QTRY_VERIFY(openRowsIn(m_path).empty() && !QFile::exists(m_path + "-unwritten"));
    m_recorder.reset();
    QCOMPARE(recordedBytesOf("wwan0"), countedBytesOf("wwan0"));
    QCOMPARE(recordedBytesOf("ppp0"), pppBytes);
    // A lock that lasts is told of.
    m_failures.reset();
}

void NetworkLossesTest::reconnectsThatNobodyHadTimeToSeeAreRecordsOfTheirOwn()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(1, 10));
    // All of that waits in the queue when the recorder gets to read it.
    QVERIFY(ipBatch(QStringLiteral("link set wwan0 down\nlink set wwan0 up\n"
                                   "link set wwan0 down\nlink set wwan0 up\n")));
    QTRY_COMPARE(m_connections->size(), 3);
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->download(1, 20));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 3);
    QCOMPARE(recordsIn(m_path),
             QStringList({record("wwan0", VethPair::bytesOf(1, 10), 0), record("wwan0", 0, 0),
                          record("wwan0", 0, VethPair::bytesOf(1, 20))}));
}

NETWORK_TEST_MAIN(NetworkLossesTest)

#include "tst_networklosses.moc"
