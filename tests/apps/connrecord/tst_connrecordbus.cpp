// SPDX-License-Identifier: MIT
#include "BusClient.h"
#include "NetworkTest.h"
#include "PrivateBus.h"
#include "RecorderTest.h"
#include "RecordingProgram.h"
#include "SilentBus.h"
#include "recorder/bus/RecorderService.h"

#include <QDBusArgument>
#include <QFileInfo>

#include <csignal>

using recorder::RecorderService;

/// The program that records, with real interfaces, as others see it on a session bus of
/// this test's own.
class ConnrecordBusTest : public QObject
{
    Q_OBJECT

public:
    explicit ConnrecordBusTest(const QString &obstacle)
        : m_obstacle(obstacle)
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void tellsOfAConnectionFromBeginningToEnd();
    void tellsWhatItMovesToWhoWatches();
    void showsWhyItDoesNotRecord();
    void leavesTheBusWhenAllIsInTheHistory();
    void recordsBesideASilentBus();

private:
    using Program = std::unique_ptr<RecordingProgram>;
    Program start() const;
    qint64 shownBytes()
    {
        return m_client->connections().value(0).value("UploadedBytes").toLongLong();
    }

    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<BusClient> m_client;
};

void ConnrecordBusTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

void ConnrecordBusTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_line.emplace();
    QVERIFY(m_line->isMade());
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    m_client = std::make_unique<BusClient>(m_bus->address(), RecorderService::nameFor(m_path));
}

void ConnrecordBusTest::cleanup()
{
    m_client.reset();
    m_bus.reset();
    m_line.reset();
    m_folder.reset();
}

ConnrecordBusTest::Program ConnrecordBusTest::start() const
{
    return std::make_unique<RecordingProgram>(
        QStringList{"--store", m_path, "record"},
        RecordingProgram::Environment{{"DBUS_SESSION_BUS_ADDRESS", m_bus->address()}});
}

void ConnrecordBusTest::tellsOfAConnectionFromBeginningToEnd()
{
    const Program program = start();
    QTRY_VERIFY(m_client->isServiceThere());
    QCOMPARE(m_client->property("Recording"), QVariant(true));
    QCOMPARE(m_client->property("Problem"), QVariant(QString()));
    QCOMPARE(m_client->property("History"), QVariant(QFileInfo(m_path).canonicalFilePath()));
    QVERIFY(m_client->connections().isEmpty());
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_client->received("ConnectionBegan").size(), 1);
    const QVariantMap lasting = m_client->connections().value(0);
    QCOMPARE(lasting.value("Interface").toString(), QString("wwan0"));
    QCOMPARE(lasting.value("Since").toLongLong(), qint64(openRowsIn(m_path).front().startUtc));
    QVERIFY(m_line->upload(4, 200));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(m_client->received("ConnectionEnded").size(), 1);
    QTRY_COMPARE(m_client->received("HistoryChanged").size(), 1);
    const auto ended =
        qdbus_cast<QVariantMap>(m_client->received("ConnectionEnded").first().arguments().at(1));
    QCOMPARE(ended.value("UploadedBytes").toLongLong(), qint64(VethPair::bytesOf(4, 200)));
    QCOMPARE(ended.value("Ending").toString(), QString("normal"));
    QCOMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 200), 0)));
    QVERIFY(m_client->connections().isEmpty());
    QVERIFY(m_client->toldValues("Connections").isEmpty());
}

void ConnrecordBusTest::tellsWhatItMovesToWhoWatches()
{
    const Program program = start();
    QTRY_VERIFY(m_client->isServiceThere());
    QCOMPARE(m_client->call("Watch").type(), QDBusMessage::ReplyMessage);
    QVERIFY(m_line->goUp());
    QVERIFY(m_line->upload(4, 200));
    const auto toldBytes = [this] {
        const QVariantList told = m_client->toldValues("Connections");
        return told.isEmpty()
                   ? -1
                   : connectionsIn(told.last()).value(0).value("UploadedBytes").toLongLong();
    };
    QTRY_COMPARE_WITH_TIMEOUT(toldBytes(), qint64(VethPair::bytesOf(4, 200)), checkpointTimeout);
    QCOMPARE(shownBytes(), toldBytes());
}

void ConnrecordBusTest::showsWhyItDoesNotRecord()
{
    const Program first = start();
    QTRY_COMPARE(first->said(), recording);
    QTRY_VERIFY(m_client->isServiceThere());
    const QString owner = m_client->owner();
    const Program second = start();
    QTRY_VERIFY(second->said().contains("recorded by another"));
    // Nobody asks the one that waits, so it gets the name when nobody else has it.
    QCOMPARE(m_client->owner(), owner);
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_client->connections().size(), 1);
    QCOMPARE(first->exitCodeAfter(SIGTERM), 0);
    QTRY_VERIFY(m_client->isServiceThere() && m_client->owner() != owner);
    QTRY_COMPARE(m_client->property("Recording"), QVariant(true));
    QTRY_COMPARE(m_client->connections().size(), 1);
    QCOMPARE(m_client->property("Problem"), QVariant(QString()));
}

/// So that who takes over finds every byte there.
void ConnrecordBusTest::leavesTheBusWhenAllIsInTheHistory()
{
    const Program program = start();
    QTRY_VERIFY(m_client->isServiceThere());
    QVERIFY(m_line->goUp());
    QTRY_COMPARE(m_client->connections().size(), 1);
    QVERIFY(m_line->upload(4, 200));
    kill(pid_t(program->process()), SIGTERM);
    QTRY_VERIFY(!m_client->isServiceThere());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{VethPair::bytesOf(4, 200)});
}

void ConnrecordBusTest::recordsBesideASilentBus()
{
    m_client.reset();
    m_bus->kill();
    QVERIFY(QFile::remove(m_bus->socket()));
    SilentBus silent(m_bus->socket().toLocal8Bit());
    QVERIFY(silent.isListening());
    const Program program = start();
    silent.acceptClient();
    QTRY_VERIFY(silent.hasHeard("AUTH EXTERNAL"));
    QTRY_COMPARE(program->said(), recording);
    QVERIFY(m_line->goUp());
    QTRY_VERIFY(program->said().contains("Connected"));
    QVERIFY(m_line->upload(4, 200));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(recordsIn(m_path), QStringList(record("wwan0", VethPair::bytesOf(4, 200), 0)));
    QCOMPARE(program->exitCodeAfter(SIGTERM), 0);
}

NETWORK_TEST_MAIN(ConnrecordBusTest)

#include "tst_connrecordbus.moc"
