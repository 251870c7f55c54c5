// SPDX-License-Identifier: MIT
#include "ServiceTest.h"
#include "SilentBus.h"

using recorder::ConnectionRecorder;
using recorder::RecorderService;

/// What a recorder's service does with buses that come and go, and with others of its name.
class TestRecorderServiceBus : public ServiceTest
{
    Q_OBJECT

private slots:
    void comesBackWithTheBus();
    void forgetsListenersOfAFormerBus();
    void recordsWithoutABus();
    void findsABusInABusyFolder();
    void recordsBesideASilentBus();
    void goesToNoOtherComputer();
    void givesTheNameToTheOneThatRecords();
    void givesTheNameAwayWhenItRecordsNoMore();
    void givesTheNameToWhoWaitedForItBefore();
    void hasANameForEachHistory();

private:
    void recordAConnection();
};

void TestRecorderServiceBus::recordAConnection()
{
    connectLink(7, "ppp0", 100, 200);
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(firstRecord().uploadedBytes, 1000);
}

void TestRecorderServiceBus::comesBackWithTheBus()
{
    publish();
    connectLink(7, "ppp0", 100, 200);
    QTRY_COMPARE(m_client->connections().size(), 1);
    m_client.reset();
    m_bus->kill();
    move(1100, 5200);
    QVERIFY(QFile::remove(m_bus->socket()));
    QVERIFY(m_bus->start());
    m_client = makeClient();
    QTRY_VERIFY(m_client->isServiceThere());
    QTRY_COMPARE(m_client->connections().value(0).value("UploadedBytes").toLongLong(), 1000);
    m_links->tell(goneLink(7, "ppp0", 2100, 5200));
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 1);
    QCOMPARE(firstRecord().uploadedBytes, 2000);
}

void TestRecorderServiceBus::forgetsListenersOfAFormerBus()
{
    publish();
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    m_bus->kill();
    m_client.reset();
    QVERIFY(QFile::remove(m_bus->socket()));
    QVERIFY(m_bus->start());
    m_client = makeClient();
    QTRY_VERIFY(m_client->isServiceThere());
    connectLink(7, "ppp0", 100, 200);
    m_links->tell(goneLink(7, "ppp0", 1100, 5200));
    QTRY_COMPARE(m_client->received("HistoryChanged").size(), 1);
    QVERIFY(m_client->toldValues("Connections").isEmpty());
}

void TestRecorderServiceBus::recordsWithoutABus()
{
    m_bus->kill();
    QVERIFY(start());
    m_service = makeService(*m_recorder);
    m_service->start();
    recordAConnection();
    QVERIFY(QFile::remove(m_bus->socket()));
    QVERIFY(m_bus->start());
    m_client = makeClient();
    QTRY_VERIFY(m_client->isServiceThere());
}

/// Others put their sockets and files there too, all the time.
void TestRecorderServiceBus::findsABusInABusyFolder()
{
    m_bus->kill();
    QVERIFY(QFile::remove(m_bus->socket()));
    QVERIFY(start());
    m_service = makeService(*m_recorder);
    m_service->start();
    QVERIFY(m_bus->start());
    m_client = makeClient();
    const auto isThereAmongOthers = [this] {
        QFile other(m_busFolder->filePath("other"));
        return other.open(QIODevice::WriteOnly) && other.remove() && m_client->isServiceThere();
    };
    QTRY_VERIFY(isThereAmongOthers());
}

/// The same thread is the service and the bus: had the service waited for anything, it
/// would have given up, and nobody would be on the line any more.
void TestRecorderServiceBus::recordsBesideASilentBus()
{
    m_bus->kill();
    QVERIFY(QFile::remove(m_bus->socket()));
    SilentBus silent(m_bus->socket().toLocal8Bit());
    QVERIFY(silent.isListening());
    QVERIFY(start());
    m_service = makeService(*m_recorder);
    m_service->start();
    silent.acceptClient();
    QTRY_VERIFY(silent.hasHeard("AUTH EXTERNAL"));
    recordAConnection();
    QVERIFY(silent.say("OK 1234567890abcdef1234567890abcdef\r\n"));
    QTRY_VERIFY(silent.hasHeard("NEGOTIATE_UNIX_FD\r\n"));
}

void TestRecorderServiceBus::goesToNoOtherComputer()
{
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression("\"tcp:host=192\\.0\\.2\\.1,port=1\" is not on this computer"));
    QVERIFY(start());
    RecorderService service(
        *m_recorder, m_path, RecorderService::Place::Foreground,
        [](const recorder::Problem &) { return QString(); }, "tcp:host=192.0.2.1,port=1");
    service.start();
    recordAConnection();
}

/// Another recorder of the same history waits for this one to end, but was on the bus first.
void TestRecorderServiceBus::givesTheNameToTheOneThatRecords()
{
    QVERIFY(start());
    ConnectionRecorder waiting(m_path, {}, std::make_unique<FakeLinks>(),
                               std::make_unique<FakePorts>(), std::make_unique<FakeClock>(),
                               shortIntervals);
    QVERIFY(!waiting.start());
    const auto first = makeService(waiting);
    first->start();
    m_client = makeClient();
    QTRY_COMPARE(m_client->property("Waiting"), QVariant(true));
    m_service = makeService(*m_recorder);
    m_service->start();
    QTRY_COMPARE(m_client->property("Recording"), QVariant(true));
    // The first one is the next one.
    m_recorder->end();
    m_service.reset();
    QTRY_COMPARE(m_client->property("Recording"), QVariant(true));
    QCOMPARE(m_client->property("Waiting"), QVariant(false));
}

void TestRecorderServiceBus::givesTheNameAwayWhenItRecordsNoMore()
{
    publish();
    ConnectionRecorder waiting(m_path, {}, std::make_unique<FakeLinks>(),
                               std::make_unique<FakePorts>(), std::make_unique<FakeClock>(),
                               shortIntervals);
    QVERIFY(!waiting.start());
    const auto second = makeService(waiting);
    second->start();
    const QString owner = m_client->owner();
    QVERIFY(!owner.isEmpty());
    m_links->isBlind = true;
    emit m_links->failed(recorder::Problem());
    QTRY_VERIFY(waiting.isRecording());
    QTRY_VERIFY(m_client->isServiceThere() && m_client->owner() != owner);
    QTRY_COMPARE(m_client->property("Recording"), QVariant(true));
}

/// Another recorder may begin, and ask for the name, sooner than this one hears that it has
/// stopped.
void TestRecorderServiceBus::givesTheNameToWhoWaitedForItBefore()
{
    publish();
    m_client->waitForName();
    QVERIFY(m_client->owner() != m_client->name());
    m_links->isBlind = true;
    emit m_links->failed(recorder::Problem());
    QTRY_COMPARE(m_client->owner(), m_client->name());
}

void TestRecorderServiceBus::hasANameForEachHistory()
{
    const QString home = QDir::homePath() + "/.local/share/refdialer/connections.db";
    QCOMPARE(RecorderService::nameFor(home), RecorderService::interfaceName());
    publish();
    QVERIFY(m_client->isServiceThere());
    const BusClient other(m_bus->address(), RecorderService::nameFor(home));
    QVERIFY(!other.isServiceThere());
}

QTEST_GUILESS_MAIN(TestRecorderServiceBus)
#include "tst_recorderservicebus.moc"
