// SPDX-License-Identifier: MIT
#include "NetworkNamespace.h"
#include "RecordText.h"
#include "VethPair.h"
#include "recorder/ConnectionRecorder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

using history::Connection;
using history::Store;
using recorder::ConnectionRecorder;
using recorder::ConnectionState;

/// What a recorder leaves behind that is killed in the middle of a connection.
class RecordingCrashTest : public QObject
{
    Q_OBJECT

public:
    explicit RecordingCrashTest(QString obstacle)
        : m_obstacle(std::move(obstacle))
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theNextStartGoesOnWithALinkThatIsStillConnected();
    void theNextStartEndsTheRecordOfALinkThatWasConnectedAnew();
    void theNextStartClosesTheRecordOfALinkThatIsGone();
    void theNextStartClosesTheRecordOfALinkThatWasReplaced();

private:
    const QString m_obstacle;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<VethPair> m_line;
    QString m_earlierRecord;
    qint64 m_start = 0;
};

namespace
{

qint64 checkpointedBytes()
{
    return VethPair::bytesOf(10, 400);
}

QString recoveredRecord()
{
    return QStringLiteral("wwan0 up %1 down 0 recovered").arg(checkpointedBytes());
}

} // namespace

void RecordingCrashTest::initTestCase()
{
    if (!m_obstacle.isEmpty())
        QSKIP(qPrintable(m_obstacle), "");
}

/// Leaves a record of an earlier day and the row of a killed recorder.
void RecordingCrashTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    Connection earlier;
    earlier.startUtc = 1000;
    earlier.endUtc = 2000;
    earlier.interfaceName = "wwan0";
    QVERIFY(Store::openOrCreate(m_path.toStdString()).value().add(earlier));
    m_earlierRecord = textOf(earlier);

    m_line.emplace();
    QVERIFY(m_line->isMade());
    QProcess recorder;
    recorder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    recorder.start(QStringLiteral(RECORDER_PEER), {m_path});
    QVERIFY(m_line->goUp());
    // It may have told of the connection already, while the line was waited for.
    QVERIFY(recorder.bytesAvailable() > 0 || recorder.waitForReadyRead());
    QVERIFY(m_line->upload(10, 400));
    QTRY_COMPARE_WITH_TIMEOUT(openRowsIn(m_path).front().uploadedBytes,
                              std::int64_t{checkpointedBytes()}, 20000);
    m_start = openRowsIn(m_path).front().startUtc;
    recorder.kill();
    QVERIFY(recorder.waitForFinished());
    QCOMPARE(recorder.exitStatus(), QProcess::CrashExit);
    QCOMPARE(recordsIn(m_path), QStringList(m_earlierRecord));
}

void RecordingCrashTest::cleanup()
{
    m_line.reset();
    m_folder.reset();
}

void RecordingCrashTest::theNextStartGoesOnWithALinkThatIsStillConnected()
{
    QVERIFY(m_line->upload(2, 30));
    ConnectionRecorder recorder(m_path);
    QSignalSpy connections(&recorder, &ConnectionRecorder::connected);
    QVERIFY(recorder.start());
    QTRY_COMPARE(connections.size(), 1);
    const auto state = connections.first().first().value<ConnectionState>();
    QCOMPARE(state.since.toSecsSinceEpoch(), m_start);
    QCOMPARE(state.uploadedBytes, checkpointedBytes() + VethPair::bytesOf(2, 30));
    QVERIFY(m_line->download(3, 60));
    QVERIFY(m_line->goDown());
    QTRY_COMPARE(
        recordsIn(m_path),
        QStringList({m_earlierRecord, QStringLiteral("wwan0 up %1 down %2 normal")
                                          .arg(checkpointedBytes() + VethPair::bytesOf(2, 30))
                                          .arg(VethPair::bytesOf(3, 60))}));
    QVERIFY(openRowsIn(m_path).empty());
}

void RecordingCrashTest::theNextStartEndsTheRecordOfALinkThatWasConnectedAnew()
{
    QVERIFY(m_line->goDown());
    QVERIFY(m_line->goUp());
    ConnectionRecorder recorder(m_path);
    QVERIFY(recorder.start());
    QCOMPARE(recordsIn(m_path), QStringList({m_earlierRecord, recoveredRecord()}));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{0});
}

void RecordingCrashTest::theNextStartClosesTheRecordOfALinkThatIsGone()
{
    m_line.reset();
    ConnectionRecorder recorder(m_path);
    QVERIFY(recorder.start());
    QCOMPARE(recordsIn(m_path), QStringList({m_earlierRecord, recoveredRecord()}));
    QVERIFY(openRowsIn(m_path).empty());
}

void RecordingCrashTest::theNextStartClosesTheRecordOfALinkThatWasReplaced()
{
    m_line.reset();
    m_line.emplace();
    QVERIFY(m_line->goUp());
    ConnectionRecorder recorder(m_path);
    QVERIFY(recorder.start());
    QCOMPARE(recordsIn(m_path), QStringList({m_earlierRecord, recoveredRecord()}));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{0});
}

int main(int argc, char **argv)
{
    const QString obstacle = enterNetworkNamespace();
    const QCoreApplication application(argc, argv);
    RecordingCrashTest test(obstacle);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recordingcrash.moc"
