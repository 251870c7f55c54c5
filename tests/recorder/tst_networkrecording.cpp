// SPDX-License-Identifier: MIT
#include "NetworkTest.h"
#include "TunDevice.h"

#include <QDir>
#include <QFile>

#include <net/if.h>

using recorder::ConnectionRecorder;
using recorder::ConnectionState;

class NetworkRecordingTest : public NetworkTest
{
    Q_OBJECT

public:
    using NetworkTest::NetworkTest;

private slots:
    void carriesEveryByteUntilTheLinkGoesDown();
    void theRecordIsInTheStoreBeforeAnybodyHearsOfIt();
    void tellsWhatALivingInterfaceMovedUnwatchedFromItsConnection();
    void anInterfaceDeletedAtOnceTakesNoByteWithIt();
    void anInterfaceMadeAnewUnderTheSameNameIsAnotherConnection();
    void aLineMadeAnewUnderTheSameNameIsAnotherConnection();
    void lastsUnderANewNameAfterARename();
    void endsWhenTheAddressGoes();
    void recordsANamedInterface();
    void recordsAnInterfaceByAnAlternativeName();
    void recordsAnInterfaceThatGetsItsAlternativeNameLate();
    void recordsADeviceOfTheTypeWwanByAnyName();
    void leavesOtherInterfacesAlone();
    void waitsAsLongAsTheLinkIsDormant();
    void reportsTheStateEverySecond();
    void updatesTheStoreWhileConnected();

private:
    void recordsTheFarEndToo();
};

void NetworkRecordingTest::carriesEveryByteUntilTheLinkGoesDown()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(40, 1000));
    QVERIFY(m_line->download(25, 700));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(recordsIn(m_path),
             QStringList(record("wwan0", VethPair::bytesOf(40, 1000), VethPair::bytesOf(25, 700))));
    QCOMPARE(recordsSeenBy(*m_disconnections), recordsIn(m_path));
}

void NetworkRecordingTest::theRecordIsInTheStoreBeforeAnybodyHearsOfIt()
{
    QStringList inStore;
    connect(m_recorder.get(), &ConnectionRecorder::disconnected, this,
            [&] { inStore = recordsIn(m_path); });
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(inStore, QStringList(record("wwan0", 0, 0)));
}

void NetworkRecordingTest::tellsWhatALivingInterfaceMovedUnwatchedFromItsConnection()
{
    m_recorder.reset();
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->upload(7, 500));
    QVERIFY(startRecorder());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(3, 100));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path),
                 QStringList({record("wwan0", VethPair::bytesOf(7, 500), 0, "not watched"),
                              record("wwan0", VethPair::bytesOf(3, 100), 0)}));
}

void NetworkRecordingTest::anInterfaceDeletedAtOnceTakesNoByteWithIt()
{
    {
        const TunDevice device;
        if (!device.isMade())
            QSKIP("an interface cannot be made through /dev/net/tun", "");
        QVERIFY(device.goUp());
        QTRY_COMPARE(m_connections->size(), 1);
        QVERIFY(device.upload(40, 1000));
        QVERIFY(device.download(25, 700));
    }
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(recordsIn(m_path), QStringList(record("ppp0", TunDevice::bytesOf(40, 1000),
                                                   TunDevice::bytesOf(25, 700))));
}

void NetworkRecordingTest::anInterfaceMadeAnewUnderTheSameNameIsAnotherConnection()
{
    QStringList expected;
    for (int i = 1; i <= 5; ++i) {
        const TunDevice device;
        if (!device.isMade())
            QSKIP("an interface cannot be made through /dev/net/tun", "");
        QVERIFY(device.goUp());
        QVERIFY(device.upload(i, 100));
        QVERIFY(device.download(i, 200));
        expected << record("ppp0", TunDevice::bytesOf(i, 100), TunDevice::bytesOf(i, 200));
    }
    QTRY_COMPARE(m_disconnections->size(), 5);
    QCOMPARE(recordsIn(m_path), expected);
}

void NetworkRecordingTest::aLineMadeAnewUnderTheSameNameIsAnotherConnection()
{
    QStringList expected;
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(m_line->goUp());
        QVERIFY(m_line->upload(i, 100));
        QVERIFY(m_line->download(i, 200));
        // One end of a pair that is deleted while it is up no longer knows what it
        // has received, for the other end had counted that.
        QVERIFY(m_line->goDown());
        m_line.reset();
        m_line.emplace();
        expected << record("wwan0", VethPair::bytesOf(i, 100), VethPair::bytesOf(i, 200));
    }
    QTRY_COMPARE(m_disconnections->size(), 3);
    QCOMPARE(recordsIn(m_path), expected);
}

void NetworkRecordingTest::lastsUnderANewNameAfterARename()
{
    QVERIFY(ip(QStringLiteral("link set wwan0 name other0")));
    QVERIFY(ip(QStringLiteral("link set other0 name wwan9")));
    QVERIFY(ip(QStringLiteral("link set wwan9 up")));
    QTRY_COMPARE(m_connections->size(), 1);
    QCOMPARE(m_connections->first().first().value<ConnectionState>().interfaceName,
             QStringLiteral("wwan9"));
    QVERIFY(ip(QStringLiteral("link set wwan9 down")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan9", 0, 0)));
}

void NetworkRecordingTest::endsWhenTheAddressGoes()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->upload(5, 300));
    QVERIFY(ip(QStringLiteral("addr del 10.0.0.1/24 dev wwan0")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(5, 300), 0)));
}

/// It becomes a second connection beside wwan0, with what it moves from then on.
void NetworkRecordingTest::recordsTheFarEndToo()
{
    QTRY_COMPARE(m_connections->size(), 2);
    QVERIFY(m_line->download(2, 50));
    QVERIFY(ip(QStringLiteral("link set far0 down")));
    QTRY_COMPARE(m_disconnections->size(), 2);
    QVERIFY(recordsIn(m_path).contains(record("far0", VethPair::bytesOf(2, 50), 0)));
}

void NetworkRecordingTest::recordsANamedInterface()
{
    m_recorder.reset();
    QVERIFY(m_line->goUp());
    QVERIFY(startRecorder({QStringLiteral("far0")}));
    recordsTheFarEndToo();
}

void NetworkRecordingTest::recordsAnInterfaceByAnAlternativeName()
{
    m_recorder.reset();
    const QString name = QStringLiteral("the-far-end-of-the-line");
    QVERIFY(ip(QStringLiteral("link property add dev far0 altname ") + name));
    QVERIFY(startRecorder(QStringList(name)));
    QVERIFY(m_line->goUp());
    recordsTheFarEndToo();
}

/// It is connected already, and what it has moved is not of the connection that
/// begins with the name.
void NetworkRecordingTest::recordsAnInterfaceThatGetsItsAlternativeNameLate()
{
    m_recorder.reset();
    QVERIFY(startRecorder(QStringList(QStringLiteral("lte"))));
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(m_line->download(7, 500));
    QVERIFY(ip(QStringLiteral("link property add dev far0 altname lte")));
    recordsTheFarEndToo();
}

/// The driver of a modem says so where the system lists its devices; for the pair of
/// interfaces, a folder of the test's does.
void NetworkRecordingTest::recordsADeviceOfTheTypeWwanByAnyName()
{
    m_recorder.reset();
    QVERIFY(QDir(m_folder->path()).mkdir("far0"));
    QFile properties(m_folder->filePath("far0/uevent"));
    QVERIFY(properties.open(QIODevice::WriteOnly));
    properties.write("DEVTYPE=wwan\nINTERFACE=far0\nIFINDEX=" +
                     QByteArray::number(if_nametoindex("far0")) + '\n');
    properties.close();
    QVERIFY(startWithDeviceTypes(m_folder->path()));
    QVERIFY(m_line->goUp());
    recordsTheFarEndToo();
}

void NetworkRecordingTest::leavesOtherInterfacesAlone()
{
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(m_connections->size(), 1);
}

/// It has a carrier, but waits for leave to send.
void NetworkRecordingTest::waitsAsLongAsTheLinkIsDormant()
{
    QVERIFY(ip(QStringLiteral("link set wwan0 mode dormant")));
    QVERIFY(ip(QStringLiteral("link set wwan0 up")));
    QVERIFY(ip(QStringLiteral("link set wwan0 down")));
    QVERIFY(ip(QStringLiteral("link set wwan0 up")));
    // The kernel takes the change from "dormant" to "up" only, and may be late.
    QTRY_VERIFY(ip(QStringLiteral("link set wwan0 state up")) && isRunning("wwan0"));
    QTRY_COMPARE(m_connections->size(), 1);
    QVERIFY(ip(QStringLiteral("link set wwan0 down")));
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", 0, 0)));
}

void NetworkRecordingTest::reportsTheStateEverySecond()
{
    m_recorder->setProfileName(QStringLiteral("internet"));
    QSignalSpy states(m_recorder.get(), &ConnectionRecorder::stateChanged);
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->download(10, 400));
    const auto lastState = [&] { return states.last().first().value<ConnectionState>(); };
    QTRY_VERIFY(!states.isEmpty() && lastState().downloadedBytes == VethPair::bytesOf(10, 400));
    QCOMPARE(lastState().profile, QStringLiteral("internet"));
    QCOMPARE(lastState().interfaceName, QStringLiteral("wwan0"));
    QVERIFY(lastState().downloadRate > 0);
    QCOMPARE(lastState().uploadRate, 0);
    QTRY_COMPARE(lastState().downloadRate, 0);
}

void NetworkRecordingTest::updatesTheStoreWhileConnected()
{
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(m_line->upload(10, 400));
    QTRY_COMPARE_WITH_TIMEOUT(openRowsIn(m_path).front().uploadedBytes,
                              std::int64_t{VethPair::bytesOf(10, 400)}, 20000);
    QVERIFY(recordsIn(m_path).isEmpty());
}

NETWORK_TEST_MAIN(NetworkRecordingTest)

#include "tst_networkrecording.moc"
