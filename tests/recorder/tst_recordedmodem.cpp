// SPDX-License-Identifier: MIT
#include "NetworkTest.h"
#include "RealModemManager.h"
#include "modem/PortSource.h"

using history::Connection;
using history::ConnectionHour;
using recorder::ConnectionRecorder;
using recorder::ConnectionState;

namespace
{

const QString apn = QStringLiteral("internet.example");
const QString atHome = QStringLiteral("Test Net 00101 8949001234567890128 home lte");

/// What all connections have moved, at home or not.
QString movedIn(const QString &storePath, bool isRoaming)
{
    const auto store = history::Store::openForReading(storePath.toStdString());
    const auto hours = store.value().hours();
    std::int64_t uploaded = 0;
    std::int64_t downloaded = 0;
    for (const ConnectionHour &hour : hours.value()) {
        if (hour.isRoaming != isRoaming)
            continue;
        uploaded += hour.uploadedBytes;
        downloaded += hour.downloadedBytes;
    }
    return QStringLiteral("%1 %2").arg(uploaded).arg(downloaded);
}

QString datagrams(int uploaded, int downloaded)
{
    return QStringLiteral("%1 %2")
        .arg(VethPair::bytesOf(uploaded, 100))
        .arg(VethPair::bytesOf(downloaded, 100));
}

} // namespace

// The daemon probes a modem for seconds.
#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

/// What is recorded of the traffic over a made-up modem that the real ModemManager connects.
class RecordedModemTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void recordsWhoseConnectionItIs();
    void tellsHomeAndRoamingApart();
    void endsWhenTheNetworkDisconnects();
    void endsWhenTheModemIsUnplugged();
    void knowsTheSimThatWasPutIn();
    void losesNothingWhenTheDaemonStartsAgain();
    void losesNothingWithTheEndOfTheBus();

private:
    /// Brings up a connection and waits until it is recorded as what it is.
    void connectModem();
    bool isConnectionKnown() const;
    void move(int uploaded, int downloaded);
    QStringList owners() const;

    QTemporaryDir m_daemonFolder;
    std::unique_ptr<RealModemManager> m_daemon;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::unique_ptr<ConnectionRecorder> m_recorder;
    modem::PortSource *m_ports = nullptr; ///< the recorder's
    ConnectionState m_state;              ///< the last one that it has told
};

void RecordedModemTest::initTestCase()
{
    const QString obstacle = RealModemManager::obstacle();
    if (!obstacle.isEmpty())
        QSKIP(qPrintable("no ModemManager with a made-up modem: " + obstacle), "");
    m_daemon = std::make_unique<RealModemManager>(m_daemonFolder.path());
    QVERIFY(m_daemon->startBus());
    m_line.emplace(VethPair::IsThere());
    QVERIFY(m_line->isMade());
}

void RecordedModemTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_recorder = std::make_unique<ConnectionRecorder>(m_path);
    m_ports = m_recorder->findChild<modem::PortSource *>();
    m_state = {};
    for (const auto signal : {&ConnectionRecorder::connected, &ConnectionRecorder::stateChanged})
        connect(m_recorder.get(), signal, this, [this](const auto &state) { m_state = state; });
    QVERIFY(m_recorder->start());
    QVERIFY(m_daemon->tellModem("register home"));
    connectModem();
}

void RecordedModemTest::cleanup()
{
    if (!m_recorder)
        return;
    m_daemon->disconnectBearers();
    QVERIFY(m_line->goDown());
    m_recorder.reset();
}

void RecordedModemTest::cleanupTestCase()
{
    m_daemon.reset();
}

void RecordedModemTest::connectModem()
{
    QVERIFY(m_daemon->bringUp(apn));
    QVERIFY(m_line->goUp());
    TRY_VERIFY(isConnectionKnown());
}

bool RecordedModemTest::isConnectionKnown() const
{
    const auto port = m_ports->port("wwan0");
    const auto rows = openRowsIn(m_path);
    return port && port->isConnected && rows.size() == 1 &&
           rows.front().profile == apn.toStdString() && !rows.front().technology.empty();
}

void RecordedModemTest::move(int uploaded, int downloaded)
{
    QVERIFY(m_line->upload(uploaded, 100));
    QVERIFY(m_line->download(downloaded, 100));
}

QStringList RecordedModemTest::owners() const
{
    QStringList texts;
    for (const Connection &connection : connectionsIn(m_path))
        texts << QString::fromStdString(connection.profile) + ' ' + ownerOf(connection);
    return texts;
}

void RecordedModemTest::recordsWhoseConnectionItIs()
{
    move(40, 25);
    QVERIFY(m_daemon->disconnectBearers());
    TRY_VERIFY(recordsIn(m_path).size() == 1);
    QCOMPARE(recordsIn(m_path),
             QStringList(record("wwan0", VethPair::bytesOf(40, 100), VethPair::bytesOf(25, 100))));
    QCOMPARE(owners(), QStringList(apn + ' ' + atHome));
}

void RecordedModemTest::tellsHomeAndRoamingApart()
{
    move(5, 1);
    QVERIFY(m_daemon->tellModem("register roaming"));
    TRY_VERIFY(m_state.isRoaming);
    move(7, 2);
    QVERIFY(m_daemon->tellModem("register home"));
    TRY_VERIFY(!m_state.isRoaming);
    move(11, 3);
    QVERIFY(m_daemon->disconnectBearers());
    TRY_VERIFY(recordsIn(m_path).size() == 1);
    QCOMPARE(movedIn(m_path, false), datagrams(16, 4));
    QCOMPARE(movedIn(m_path, true), datagrams(7, 2));
}

void RecordedModemTest::endsWhenTheNetworkDisconnects()
{
    move(3, 4);
    QVERIFY(m_daemon->tellModem("drop"));
    TRY_VERIFY(recordsIn(m_path).size() == 1);
    QCOMPARE(movedIn(m_path, false), datagrams(3, 4));
    QCOMPARE(owners(), QStringList(apn + ' ' + atHome));
}

void RecordedModemTest::endsWhenTheModemIsUnplugged()
{
    move(6, 5);
    QVERIFY(m_daemon->unplug());
    QVERIFY(m_line->goDown());
    TRY_VERIFY(recordsIn(m_path).size() == 1);
    QCOMPARE(movedIn(m_path, false), datagrams(6, 5));
    QCOMPARE(owners(), QStringList(apn + ' ' + atHome));
}

void RecordedModemTest::knowsTheSimThatWasPutIn()
{
    move(1, 2);
    QVERIFY(m_daemon->tellModem("sim none"));
    TRY_VERIFY(recordsIn(m_path).size() == 1);
    QVERIFY(m_line->goDown()); // by whoever had brought it up
    QVERIFY(m_daemon->tellModem("sim B"));
    connectModem();
    move(2, 3);
    QVERIFY(m_daemon->disconnectBearers());
    TRY_VERIFY(recordsIn(m_path).size() == 2);
    QVERIFY(m_daemon->tellModem("sim A"));
    QCOMPARE(movedIn(m_path, false), datagrams(3, 5));
    QString otherSim = atHome;
    otherSim.replace("8949001234567890128", "8949009876543210982");
    QCOMPARE(owners(), QStringList({apn + ' ' + atHome, apn + ' ' + otherSim}));
}

void RecordedModemTest::losesNothingWhenTheDaemonStartsAgain()
{
    move(8, 1);
    m_daemon->killDaemon();
    TRY_VERIFY(!m_ports->isAvailable());
    move(9, 2);
    connectModem();
    move(10, 3);
    QVERIFY(m_line->goDown());
    TRY_VERIFY(openRowsIn(m_path).empty());
    QCOMPARE(movedIn(m_path, false), datagrams(27, 6));
    for (const QString &owner : owners())
        QCOMPARE(owner, apn + ' ' + atHome);
}

void RecordedModemTest::losesNothingWithTheEndOfTheBus()
{
    move(4, 4);
    m_daemon->killBus();
    TRY_VERIFY(!m_ports->isAvailable());
    move(5, 5);
    QVERIFY(m_daemon->startBus());
    connectModem();
    move(6, 6);
    QVERIFY(m_line->goDown());
    TRY_VERIFY(openRowsIn(m_path).empty());
    QCOMPARE(movedIn(m_path, false), datagrams(15, 15));
}

int main(int argc, char **argv)
{
    RealModemManager::enterNetwork(argv);
    const QCoreApplication application(argc, argv);
    RecordedModemTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recordedmodem.moc"
