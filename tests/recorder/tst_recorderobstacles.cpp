// SPDX-License-Identifier: MIT
#include "RecorderTest.h"
#include "StoreLock.h"
#include "recorder/RecorderLock.h"

#include <QDir>
#include <QFile>
#include <QTimer>

#include <atomic>
#include <thread>

using recorder::ConnectionRecorder;
using recorder::ConnectionState;
using recorder::Problem;
using recorder::RecorderLock;

class RecorderObstaclesTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void keepsWhatItCannotWriteAndTriesAgain();
    void saysWhenItCanWriteAgain();
    void saysNothingOfALockThatDoesNotLast();
    void isNotHeldUpByALockedStore();
    void aStoreIsTheSameByAnyName();
    void recordsWhateverAKilledRecorderLeftOfItsLock_data();
    void recordsWhateverAKilledRecorderLeftOfItsLock();
    void leavesNoLockBehind();
    void saysWhyItCannotLock();
    void saysWhatIsWrongWithAStoreThatAnotherRecordsInto();
    void settlesNothingWhileItCannotSeeTheLinks();
    void leavesTheRecordingToTheFirstRecorder();
    void takesOverWhenTheFirstRecorderEnds();
    void makesWayAndTakesOverAgain();
    void triesNowWhatItTriesAgain();
    void makesNoWayBeforeItsStartOrAfterItsEnd();
};

void RecorderObstaclesTest::keepsWhatItCannotWriteAndTriesAgain()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    StoreLock lock(m_path);
    m_links->tell(downLink(3, "wwan0", 5, 6));
    // The next connection of the same link must not be taken for the former one.
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    m_clock->pass(5000);
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(lastProblemSeenBy(*m_failures).reason,
             QStringLiteral("The connection history \"%1\" has been locked by another program for "
                            "5 seconds; close that program or try again later.")
                 .arg(m_path));
    QVERIFY(m_disconnections->isEmpty());
    lock.release();
    m_links->tell(downLink(3, "wwan0", 7, 7));
    QTRY_COMPARE_WITH_TIMEOUT(m_disconnections->size(), 2, checkpointTimeout);
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 5 down 6 normal", "wwan0 up 2 down 1 normal"}));
    QVERIFY(openRowsIn(m_path).empty());
}

void RecorderObstaclesTest::saysWhenItCanWriteAgain()
{
    QVERIFY(start());
    QSignalSpy successes(m_recorder.get(), &ConnectionRecorder::succeeded);
    connectLink(3, "wwan0", 0, 0);
    StoreLock lock(m_path);
    m_links->tell(downLink(3, "wwan0", 5, 6));
    m_clock->pass(5000);
    QTRY_COMPARE(m_failures->size(), 1);
    QVERIFY(successes.isEmpty());
    lock.release();
    QTRY_COMPARE_WITH_TIMEOUT(successes.size(), 1, checkpointTimeout);
}

void RecorderObstaclesTest::saysNothingOfALockThatDoesNotLast()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    StoreLock lock(m_path);
    m_links->tell(downLink(3, "wwan0", 5, 6));
    m_clock->pass(4000);
    lock.release();
    QTRY_COMPARE(m_disconnections->size(), 1);
    connectLink(4, "wwan1", 0, 0);
    StoreLock another(m_path);
    m_clock->pass(4000);
    m_links->tell(downLink(4, "wwan1", 5, 6));
    another.release();
    QTRY_COMPARE(m_disconnections->size(), 2);
    QVERIFY(m_failures->isEmpty());
}

/// What happens meanwhile has to get its time when it happens.
void RecorderObstaclesTest::isNotHeldUpByALockedStore()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    StoreLock lock(m_path);
    std::atomic<bool> hasAnotherGivenUp = false;
    std::thread another([this, &hasAnotherGivenUp] {
        constexpr int patience = 2000; // milliseconds
        SQLite::Database store(m_path.toStdString(), SQLite::OPEN_READWRITE, patience);
        QVERIFY(store.tryExec("BEGIN IMMEDIATE") != 0);
        hasAnotherGivenUp = true;
    });
    m_links->tell(downLink(3, "wwan0", 5, 6));
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    m_links->tell(downLink(3, "wwan0", 7, 8));
    m_recorder.reset();
    const bool wasInTime = !hasAnotherGivenUp;
    another.join();
    QVERIFY(wasInTime);
}

void RecorderObstaclesTest::leavesTheRecordingToTheFirstRecorder()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    const std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    FakeLinks *const links = m_links;
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(lastProblemSeenBy(*m_failures).process, QCoreApplication::applicationPid());
    m_recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(!ConnectionRecorder(m_path).start());
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    links->tell(downLink(3, "wwan0", 5, 6));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5 down 6 normal"));
}

void RecorderObstaclesTest::aStoreIsTheSameByAnyName()
{
    QVERIFY(start());
    const std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    const QString link = m_folder->filePath(QStringLiteral("link.db"));
    QVERIFY(QFile::link(m_path, link));
    m_path = link;
    QVERIFY(!start());
}

void RecorderObstaclesTest::recordsWhateverAKilledRecorderLeftOfItsLock_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray process = QByteArray::number(QCoreApplication::applicationPid());
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half of a number") << process.left(1);
    QTest::newRow("a number that another process has now") << QByteArray("1\nsystemd\n");
    QTest::newRow("a number that this process has now")
        << process + '\n' + QCoreApplication::applicationName().toUtf8() + '\n';
}

void RecorderObstaclesTest::recordsWhateverAKilledRecorderLeftOfItsLock()
{
    QFETCH(QByteArray, text);
    QFile lock(m_path + ".recorder");
    QVERIFY(lock.open(QIODevice::WriteOnly));
    QCOMPARE(lock.write(text), text.size());
    lock.close();
    QVERIFY(start());
    const std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    const Problem problem = lastProblemSeenBy(*m_failures);
    QCOMPARE(problem.kind, Problem::Kind::RecordedByAnother);
    QCOMPARE(problem.program, QCoreApplication::applicationName());
    QCOMPARE(problem.process, QCoreApplication::applicationPid());
}

void RecorderObstaclesTest::leavesNoLockBehind()
{
    QVERIFY(start());
    std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    QVERIFY(!start());
    m_recorder.reset();
    QVERIFY(QFile::exists(m_path + ".recorder"));
    first.reset();
    QVERIFY(!QFile::exists(m_path + ".recorder"));
}

void RecorderObstaclesTest::saysWhyItCannotLock()
{
    const QString lock = m_path + ".recorder";
    QVERIFY(QDir().mkdir(lock));
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    const Problem problem = lastProblemSeenBy(*m_failures);
    QCOMPARE(problem.kind, Problem::Kind::LockObstructed);
    QCOMPARE(problem.path, lock);
    QCOMPARE(problem.obstacle, Problem::Obstacle::NotAFile);
}

/// Only who waits for the other one to end leaves the store alone.
void RecorderObstaclesTest::saysWhatIsWrongWithAStoreThatAnotherRecordsInto()
{
    QVERIFY(QDir().mkdir(m_path));
    RecorderLock another(m_path);
    QCOMPARE(another.take(), RecorderLock::Outcome::Taken);
    QVERIFY(!start());
    QVERIFY(QDir().rmdir(m_path));
    QVERIFY(QFile::link("nowhere", m_path));
    QTRY_COMPARE(m_failures->size(), 2);
    QCOMPARE(lastProblemSeenBy(*m_failures).kind, Problem::Kind::HistoryFailed);
}

void RecorderObstaclesTest::takesOverWhenTheFirstRecorderEnds()
{
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    m_links->tell(runningLink(3, "wwan0", 1015, 2026));
    m_atStart = {runningLink(3, "wwan0", 1020, 2030), addressOn(3)};
    m_clockAtStart.pass(3000);
    QVERIFY(!start());
    QSignalSpy starts(m_recorder.get(), &ConnectionRecorder::started);
    QSignalSpy successes(m_recorder.get(), &ConnectionRecorder::succeeded);
    // It tries again meanwhile, before a timer that began after its own.
    QTimer retries;
    QSignalSpy timeouts(&retries, &QTimer::timeout);
    retries.start(shortIntervals.retry);
    QTRY_VERIFY(timeouts.size() >= 2);
    QCOMPARE(m_failures->size(), 1);
    QVERIFY(starts.isEmpty());
    first.reset();
    QTRY_COMPARE(starts.size(), 1);
    QCOMPARE(successes.size(), 1);
    QTRY_COMPARE(m_connections->size(), 1);
    QCOMPARE(m_connections->first().first().value<ConnectionState>().uploadedBytes, 10);
    m_links->tell(downLink(3, "wwan0", 1021, 2032));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 11 down 12 normal"));
}

void RecorderObstaclesTest::makesWayAndTakesOverAgain()
{
    m_atStart = {runningLink(3, "wwan0", 10, 20), addressOn(3)};
    QVERIFY(start());
    QSignalSpy stops(m_recorder.get(), &ConnectionRecorder::stopped);
    QSignalSpy starts(m_recorder.get(), &ConnectionRecorder::started);
    m_links->toCome = {runningLink(3, "wwan0", 110, 220)};
    m_links->atStart = {runningLink(3, "wwan0", 115, 226), addressOn(3)};
    m_recorder->makeWay();
    QVERIFY(!m_recorder->isRecording());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{100});
    QCOMPARE(RecorderLock(QFileInfo(m_path).canonicalFilePath()).take(),
             RecorderLock::Outcome::Taken);
    QTRY_COMPARE(stops.size(), 1);
    // Nobody has come.
    QTRY_COMPARE(starts.size(), 1);
    QTRY_COMPARE(m_connections->size(), 2);
    m_links->tell(downLink(3, "wwan0", 120, 230));
    QTRY_COMPARE(recordsIn(m_path), QStringList("wwan0 up 110 down 210 normal"));
    QVERIFY(m_failures->isEmpty());
}

void RecorderObstaclesTest::triesNowWhatItTriesAgain()
{
    QVERIFY(start());
    m_recorder->tryNow();
    QVERIFY(m_recorder->isRecording());
    m_recorder->makeWay();
    m_recorder->tryNow();
    QVERIFY(m_recorder->isRecording());
}

void RecorderObstaclesTest::makesNoWayBeforeItsStartOrAfterItsEnd()
{
    ConnectionRecorder recorder(m_path, {}, std::make_unique<FakeLinks>(),
                                std::make_unique<FakePorts>(), std::make_unique<FakeClock>());
    recorder.makeWay();
    recorder.tryNow();
    QVERIFY(!recorder.isRecording());
    QVERIFY(recorder.start());
    recorder.end();
    recorder.makeWay();
    recorder.tryNow();
    QVERIFY(!recorder.isRecording());
}

void RecorderObstaclesTest::settlesNothingWhileItCannotSeeTheLinks()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    auto links = std::make_unique<FakeLinks>();
    links->isBlind = true;
    auto recorder = std::make_unique<ConnectionRecorder>(m_path, QStringList(), std::move(links),
                                                         std::make_unique<FakePorts>(),
                                                         std::make_unique<FakeClock>());
    QVERIFY(!recorder->start());
    recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(recordsIn(m_path).isEmpty());
}

QTEST_GUILESS_MAIN(RecorderObstaclesTest)

#include "tst_recorderobstacles.moc"
