// SPDX-License-Identifier: MIT
#include "BusClient.h"
#include "PrivateBus.h"
#include "ScriptedRecorder.h"
#include "recorder/bus/RecorderClient.h"
#include "recorder/bus/RecorderService.h"

#include <QDBusObjectPath>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <memory>

using recorder::ConnectionState;
using recorder::RecorderClient;
using recorder::RecorderService;
using recorder::RecorderState;

/// What a program learns of another program's recorder, which says what the test wants.
class TestRecorderClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsWhatIsThereAlready();
    void tellsOfAConnectionFromBeginningToEnd();
    void tellsOfAnEndThatAnEarlierRecorderLeftOpen();
    void tellsWhatIsWrong();
    void forgetsARecorderThatIsGone();
    void followsTheNextOne();
    void doesNotFollowItsOwnProgram();
    void believesNobodyElse();
    void takesNonsenseForNothing_data();
    void takesNonsenseForNothing();
    void comesBackWithTheBus();

private:
    QString serviceName() const { return RecorderService::nameFor(m_path); }
    std::unique_ptr<ScriptedRecorder> makeRecorder() const;
    void follow();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<ScriptedRecorder> m_recorder;
    std::unique_ptr<RecorderClient> m_client;
    QString m_ownName;
    RecorderState m_state; ///< as it was told last
    int m_ends = 0;
};

void TestRecorderClient::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_bus = std::make_unique<PrivateBus>(m_folder->path());
    QVERIFY(m_bus->start());
    m_recorder = makeRecorder();
    m_ownName.clear();
    m_state = RecorderState();
    m_ends = 0;
}

void TestRecorderClient::cleanup()
{
    m_client.reset();
    m_recorder.reset();
    m_bus.reset();
    m_folder.reset();
}

std::unique_ptr<ScriptedRecorder> TestRecorderClient::makeRecorder() const
{
    return std::make_unique<ScriptedRecorder>(m_bus->address(), serviceName());
}

void TestRecorderClient::follow()
{
    m_client = std::make_unique<RecorderClient>(
        m_path, [this] { return m_ownName; }, m_bus->address());
    connect(m_client.get(), &RecorderClient::changed, this,
            [this](const RecorderState &state) { m_state = state; });
    connect(m_client.get(), &RecorderClient::ended, this, [this] { ++m_ends; });
    m_client->start();
}

void TestRecorderClient::showsWhatIsThereAlready()
{
    QVariantMap values = connectionValues(7, 1000);
    values.insert("Operator", "Example Telecom");
    values.insert("OperatorCode", "26201");
    values.insert("Sim", "7890");
    values.insert("Roaming", true);
    values.insert("Technology", "lte");
    m_recorder->setConnections({values, connectionValues(8)});
    follow();
    QTRY_VERIFY(m_state.isRecording);
    QCOMPARE(m_state.connections.size(), 2);
    const ConnectionState first = m_state.connections.first();
    QCOMPARE(first.id, 7);
    QCOMPARE(first.profile, QString("internet.example"));
    QCOMPARE(first.interfaceName, QString("wwan7"));
    QCOMPARE(first.operatorName, QString("Example Telecom"));
    QCOMPARE(first.operatorCode, QString("26201"));
    QCOMPARE(first.sim, QString("7890"));
    QVERIFY(first.isRoaming);
    QCOMPARE(first.technology, QString("lte"));
    QCOMPARE(first.since.toSecsSinceEpoch(), 1788220800);
    QCOMPARE(first.since.offsetFromUtc(), 0);
    QCOMPARE(first.uploadedBytes, 1000);
    QCOMPARE(first.downloadedBytes, 2);
    QCOMPARE(first.uploadRate, 3);
    QCOMPARE(first.downloadRate, 4);
    // First the one, so that nothing changes unnoticed after the other.
    QCOMPARE(m_recorder->calls, QStringList({"Watch", "GetAll"}));
}

void TestRecorderClient::tellsOfAConnectionFromBeginningToEnd()
{
    follow();
    QTRY_VERIFY(m_state.isRecording);
    m_recorder->tell("ConnectionBegan", {qint64(7), connectionValues(7)});
    QTRY_COMPARE(m_state.connections.size(), 1);
    m_recorder->tellConnections({connectionValues(7, 1000)});
    QTRY_COMPARE(m_state.connections.value(0).uploadedBytes, 1000);
    QVariantMap renamed = connectionValues(7, 1500);
    renamed.insert("Profile", "other.example");
    m_recorder->tell("ConnectionChanged", {qint64(7), renamed});
    QTRY_COMPARE(m_state.connections.value(0).profile, QString("other.example"));
    QCOMPARE(m_ends, 0);
    m_recorder->tell("ConnectionEnded", {qint64(7), renamed});
    QTRY_COMPARE(m_ends, 1);
    QVERIFY(m_state.connections.isEmpty());
}

void TestRecorderClient::tellsOfAnEndThatAnEarlierRecorderLeftOpen()
{
    m_recorder->setConnections({connectionValues(7)});
    follow();
    QTRY_COMPARE(m_state.connections.size(), 1);
    m_recorder->tell("ConnectionEnded", {qint64(0), connectionValues(0)});
    QTRY_COMPARE(m_ends, 1);
    QCOMPARE(m_state.connections.size(), 1);
}

void TestRecorderClient::tellsWhatIsWrong()
{
    m_recorder->set("Problem", "The disk is full.");
    follow();
    QTRY_COMPARE(m_state.problem, QString("The disk is full."));
    m_recorder->tellProperty("Problem", QString());
    QTRY_COMPARE(m_state.problem, QString());
    QVERIFY(m_state.isRecording);
    m_recorder->tellProperty("Recording", false);
    QTRY_VERIFY(!m_state.isRecording);
}

void TestRecorderClient::forgetsARecorderThatIsGone()
{
    m_recorder->set("Problem", "The disk is full.");
    m_recorder->setConnections({connectionValues(7)});
    follow();
    QTRY_VERIFY(m_state.isRecording);
    m_recorder->leave();
    QTRY_VERIFY(!m_state.isRecording);
    QVERIFY(m_state.connections.isEmpty());
    QVERIFY(m_state.problem.isEmpty());
}

void TestRecorderClient::followsTheNextOne()
{
    m_recorder->setConnections({connectionValues(7)});
    follow();
    QTRY_COMPARE(m_state.connections.value(0).id, 7);
    const auto next = makeRecorder();
    next->setConnections({connectionValues(1)});
    m_recorder->leave();
    QTRY_COMPARE(m_state.connections.value(0).id, 1);
    QCOMPARE(m_state.connections.size(), 1);
    QCOMPARE(next->calls, QStringList({"Watch", "GetAll"}));
}

void TestRecorderClient::doesNotFollowItsOwnProgram()
{
    BusClient observer(m_bus->address(), serviceName());
    m_ownName = observer.owner();
    m_recorder->setConnections({connectionValues(7)});
    follow();
    const auto next = makeRecorder();
    m_recorder->tell("ConnectionEnded", {qint64(7), connectionValues(7)});
    m_recorder->leave();
    // What comes later tells that nothing else was to come before.
    QTRY_VERIFY(m_state.isRecording);
    QVERIFY(m_state.connections.isEmpty());
    QCOMPARE(m_ends, 0);
    QVERIFY(m_recorder->calls.isEmpty());
}

void TestRecorderClient::believesNobodyElse()
{
    const auto waiting = makeRecorder();
    follow();
    QTRY_VERIFY(m_state.isRecording);
    waiting->tell("ConnectionBegan", {qint64(7), connectionValues(7)});
    waiting->tell("ConnectionEnded", {qint64(7), connectionValues(7)});
    waiting->tellProperty("Recording", false);
    waiting->leave();
    BusClient observer(m_bus->address(), serviceName());
    QVERIFY(observer.isServiceThere());
    m_recorder->tell("ConnectionBegan", {qint64(8), connectionValues(8)});
    QTRY_COMPARE(m_state.connections.size(), 1);
    QCOMPARE(m_state.connections.first().id, 8);
    QCOMPARE(m_ends, 0);
    QVERIFY(m_state.isRecording);
}

void TestRecorderClient::takesNonsenseForNothing_data()
{
    QTest::addColumn<QVariantList>("answer");
    QTest::newRow("a text") << QVariantList{"Recording"};
    QTest::newRow("too much") << QVariantList{QVariantMap(), 1};
    QTest::newRow("nothing in it") << QVariantList{QVariantMap()};
    QTest::newRow("other types") << QVariantList{
        QVariantMap{{"Recording", "true"},
                    {"Problem", qint64(1)},
                    {"Connections", QVariant::fromValue(QDBusObjectPath("/a"))}}};
    QTest::newRow("texts for connections")
        << QVariantList{QVariantMap{{"Connections", QStringList{"wwan0"}}}};
    const auto answerWith = [](const QString &key, const QVariant &value) {
        QVariantMap connection = connectionValues(7);
        connection.insert(key, value);
        const QList<QVariantMap> connections{connection, QVariantMap()};
        return QVariantList{QVariantMap{{"Connections", QVariant::fromValue(connections)}}};
    };
    QTest::newRow("no id") << answerWith("Id", qint64(0));
    QTest::newRow("an id below zero") << answerWith("Id", qint64(-1));
    QTest::newRow("an id of another type") << answerWith("Id", "7");
    QTest::newRow("no beginning") << answerWith("Since", qint64(0));
    QTest::newRow("a beginning of another type") << answerWith("Since", 7.0);
    QTest::newRow("a beginning after all time")
        << answerWith("Since", std::numeric_limits<qint64>::max());
}

void TestRecorderClient::takesNonsenseForNothing()
{
    QFETCH(const QVariantList, answer);
    m_recorder->answer = answer;
    follow();
    QTRY_VERIFY(m_recorder->calls.contains("GetAll"));
    m_recorder->tell("ConnectionBegan", {"wwan0"});
    m_recorder->tell("ConnectionBegan", {qint64(7), QVariantMap{{"Id", "wwan0"}}});
    m_recorder->tell("ConnectionEnded", {});
    m_recorder->tellProperty("Connections", QVariantList{1, "wwan0"});
    // What makes sense comes through all the same.
    QVariantMap negative = connectionValues(8, -1);
    negative.insert("Profile", QString(100000, 'x'));
    m_recorder->tell("ConnectionBegan", {qint64(8), negative});
    QTRY_COMPARE(m_state.connections.size(), 1);
    QCOMPARE(m_state.connections.first().id, 8);
    QCOMPARE(m_state.connections.first().uploadedBytes, 0);
    QVERIFY(m_state.connections.first().profile.size() <= 1000);
    QVERIFY(!m_state.isRecording);
    QCOMPARE(m_ends, 0);
}

void TestRecorderClient::comesBackWithTheBus()
{
    follow();
    QTRY_VERIFY(m_state.isRecording);
    m_bus->kill();
    QTRY_VERIFY(!m_state.isRecording);
    m_recorder.reset();
    QVERIFY(QFile::remove(m_bus->socket()));
    QVERIFY(m_bus->start());
    m_recorder = makeRecorder();
    QTRY_VERIFY(m_state.isRecording);
}

QTEST_GUILESS_MAIN(TestRecorderClient)
#include "tst_recorderclient.moc"
