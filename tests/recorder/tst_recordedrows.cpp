// SPDX-License-Identifier: MIT
#include "RecorderTest.h"

#include <SQLiteCpp/Database.h>

#include <QFileInfo>
#include <QTimer>

using history::Connection;
using history::OpenConnection;
using recorder::ConnectionRecorder;
using recorder::ConnectionState;

class RecordedRowsTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void aConnectionIsARowFromTheMomentItBegins();
    void bringsTheRowUpToDate();
    void leavesTheRowAsItIsBetweenCheckpoints();
    void writesNothingWhileNothingIsMoved();
    void asksForNothingWhileNoLineIsUp();
    void asksForWhatALineMovesWithoutAConnection();
    void bringsTheStoreUpToDateWithEachTickThatNobodyWatches();
    void leavesTheRowOpenWhenTheProgramEnds();
    void takesWhatHasHappenedWhenTheProgramEnds();
    void writesTheRowAnewWhenTheFileIsReplaced();
    void resumesARowOfTheSameLink();
    void aLinkThatWasConnectedAnewIsAnotherConnection_data();
    void aLinkThatWasConnectedAnewIsAnotherConnection();
    void aResumedLinkThatWasResetIsMarked();
    void closesARowAtItsLastUpdate_data();
    void closesARowAtItsLastUpdate();
    void resumesARowOfALinkThatIsNotWatched();
    void countsNothingTwiceOfALinkThatOutlivedItsRecorder();
    void recordsBesideARowThatTheStoreDoesNotTake();
    void bringsARowIntoTheRangeOfTheStore_data();
    void bringsARowIntoTheRangeOfTheStore();
    void bringsARowUpToDateAtOnce();
};

void RecordedRowsTest::aConnectionIsARowFromTheMomentItBegins()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 1000, 2000);
    const auto rows = openRowsIn(m_path);
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(rows.front().bootId, recorder::currentBootId());
    QCOMPARE(rows.front().interfaceIndex, std::int64_t{3});
    QCOMPARE(rows.front().startUtc, std::int64_t{1700000000});
    QCOMPARE(rows.front().startBootMilliseconds, std::int64_t{5000000});
    QCOMPARE(rows.front().baseUploaded, std::int64_t{1000});
    QCOMPARE(rows.front().baseDownloaded, std::int64_t{2000});
    QVERIFY(recordsIn(m_path).isEmpty());
}

void RecordedRowsTest::bringsTheRowUpToDate()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_clock->pass(5000);
    // Whenever the recorder asks, the answer shows that more has been sent.
    const auto rowAfterAnswer = [this] {
        m_links->tell(runningLink(3, "wwan0", 700, 800));
        return openRowsIn(m_path).front();
    };
    QTRY_COMPARE_WITH_TIMEOUT(rowAfterAnswer().uploadedBytes, std::int64_t{700}, checkpointTimeout);
    QCOMPARE(rowAfterAnswer().downloadedBytes, std::int64_t{800});
    QCOMPARE(rowAfterAnswer().updatedUtc, std::int64_t{1700000005});
    QCOMPARE(rowAfterAnswer().connectedSeconds, std::int64_t{5});
}

/// However often the kernel is asked.
void RecordedRowsTest::leavesTheRowAsItIsBetweenCheckpoints()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    for (const int uploaded : {5, 7})
        m_links->tell(runningLink(3, "wwan0", uploaded, 0));
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{0});
}

void RecordedRowsTest::writesNothingWhileNothingIsMoved()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    const auto requestsAtFirst = m_links->requests.size();
    const auto answerRequest = [this] {
        m_clock->pass(1000);
        m_links->tell(runningLink(3, "wwan0", 0, 0));
        return m_links->requests.size();
    };
    // The first checkpoint keeps what other links show.
    QTRY_VERIFY(answerRequest() > requestsAtFirst + 8);
    const qint64 size = QFileInfo(m_path + "-wal").size();
    const auto requestsBefore = m_links->requests.size();
    QTRY_VERIFY(answerRequest() > requestsBefore + 20);
    QCOMPARE(QFileInfo(m_path + "-wal").size(), size);
    QCOMPARE(openRowsIn(m_path).front().updatedUtc, std::int64_t{1700000000});
    const std::int64_t now = m_clock->utc;
    QVERIFY(now > 1700000000);
    m_recorder.reset();
    QCOMPARE(openRowsIn(m_path).front().updatedUtc, now);
}

void RecordedRowsTest::asksForNothingWhileNoLineIsUp()
{
    QVERIFY(start());
    const auto *const timer = m_recorder->findChild<QTimer *>(QStringLiteral("ticks"));
    QVERIFY(timer);
    QTRY_VERIFY(!timer->isActive());
    connectLink(3, "wwan0", 0, 0);
    QVERIFY(timer->isActive());
    m_links->tell(downLink(3, "wwan0", 5, 6));
    QTRY_VERIFY(!timer->isActive());
    m_links->tell(downLink(3, "wwan0", 7, 8));
    QVERIFY(timer->isActive());
    QTRY_VERIFY(!timer->isActive());
    connectLink(4, "eth0", 0, 0);
    QVERIFY(!timer->isActive());
    // What the link has shown without a connection is no traffic that nobody watched.
    m_recorder.reset();
    m_atStart = {downLink(3, "wwan0", 7, 8)};
    QVERIFY(start());
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5 down 6 normal"));
}

/// The next one begins with the counters known last.
void RecordedRowsTest::asksForWhatALineMovesWithoutAConnection()
{
    QVERIFY(start());
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    m_links->tell(runningLink(4, "eth0", 5, 6));
    QTRY_VERIFY(!m_links->requests.empty());
    QCOMPARE(m_links->requests.front(), 3);
    QVERIFY(m_connections->isEmpty());
}

void RecordedRowsTest::bringsTheStoreUpToDateWithEachTickThatNobodyWatches()
{
    QVERIFY(start());
    const auto *const timer = m_recorder->findChild<QTimer *>(QStringLiteral("ticks"));
    QTRY_VERIFY(!timer->isActive());
    m_recorder->setWatched(false);
    connectLink(3, "wwan0", 0, 0);
    std::int64_t uploaded = 0;
    const auto isStoredAfterTick = [&] {
        m_links->requests.clear();
        // It looks after each tick, not only after several.
        if (!QTest::qWaitFor([&] { return !m_links->requests.empty(); }))
            return false;
        m_links->tell(runningLink(3, "wwan0", ++uploaded, 0));
        return openRowsIn(m_path).front().uploadedBytes == uploaded;
    };
    for (int tick = 0; tick < 2 * shortIntervals.ticksPerCheckpoint; ++tick)
        QVERIFY(isStoredAfterTick());
    // Who begins to watch need not wait so long, and keeps nothing from being written.
    m_recorder->setWatched(true);
    QVERIFY(timer->remainingTime() <= shortIntervals.tick.count());
    QVERIFY(isStoredAfterTick());
}

void RecordedRowsTest::leavesTheRowOpenWhenTheProgramEnds()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(runningLink(3, "wwan0", 70, 80));
    m_recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{70});
    QVERIFY(recordsIn(m_path).isEmpty());
}

void RecordedRowsTest::takesWhatHasHappenedWhenTheProgramEnds()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    connectLink(4, "wwan1", 0, 0);
    m_links->toCome = {downLink(3, "wwan0", 70, 80), runningLink(4, "wwan1", 5, 6)};
    m_recorder.reset();
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 70 down 80 normal"));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{5});
}

void RecordedRowsTest::writesTheRowAnewWhenTheFileIsReplaced()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    SQLite::Database other(m_path.toStdString(), SQLite::OPEN_READWRITE);
    other.tryExec("DELETE FROM open_connection");
    // The row is written with the first figures that are heard of when it is time.
    const auto isThereAgain = [this] {
        m_links->tell(runningLink(3, "wwan0", 70, 80));
        return openRowsIn(m_path).size() == 1;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isThereAgain(), checkpointTimeout);
    m_links->tell(downLink(3, "wwan0", 71, 82));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 71 down 82 normal"));
}

void RecordedRowsTest::aLinkThatWasConnectedAnewIsAnotherConnection_data()
{
    QTest::addColumn<int>("carrierLosses");
    QTest::addColumn<int>("addressCreatedAt");
    QTest::newRow("its line had been lost") << 1 << 100;
    QTest::newRow("its address is a new one") << 0 << 101;
}

void RecordedRowsTest::aLinkThatWasConnectedAnewIsAnotherConnection()
{
    QFETCH(int, carrierLosses);
    QFETCH(int, addressCreatedAt);
    addRow(rowOf(recorder::currentBootId(), 3));
    recorder::LinkReport link = runningLink(3, "wwan0", 1010, 2020);
    link.carrierLosses = std::uint32_t(carrierLosses);
    recorder::AddressReport address = addressOn(3);
    address.createdAt = std::uint32_t(addressCreatedAt);
    m_atStart = {link, address};
    QVERIFY(start());
    QCOMPARE(recordsIn(m_path), QStringList({"wwan0 up 100 down 200 recovered",
                                             "wwan0 up 900 down 1800 not watched"}));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{0});
}

void RecordedRowsTest::resumesARowOfTheSameLink()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    QTRY_COMPARE(m_connections->size(), 1);
    const auto state = m_connections->first().first().value<ConnectionState>();
    QCOMPARE(state.profile, QStringLiteral("internet"));
    QCOMPARE(state.since.toSecsSinceEpoch(), 1699999000);
    QCOMPARE(state.uploadedBytes, 1000);
    m_links->tell(downLink(3, "wwan0", 1011, 2022));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 1001 down 2002 normal"));
    QCOMPARE(firstRecord().startUtc, std::int64_t{1699999000});
    QCOMPARE(firstRecord().connectedSeconds, std::int64_t{1000});
    QVERIFY(openRowsIn(m_path).empty());
}

void RecordedRowsTest::aResumedLinkThatWasResetIsMarked()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 50, 50), addressOn(3)};
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", 57, 58));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 107 down 208 counter reset"));
}

void RecordedRowsTest::closesARowAtItsLastUpdate_data()
{
    QTest::addColumn<QString>("bootId");
    QTest::addColumn<int>("linkNow");
    QTest::addColumn<bool>("isConnectedNow");
    QTest::addColumn<QString>("unwatched");
    const QString thisBoot = QString::fromStdString(recorder::currentBootId());
    const QString all = QStringLiteral("wwan0 up 1010 down 2020 not watched");
    QTest::newRow("of another run of the system") << QStringLiteral("another") << 3 << true << all;
    QTest::newRow("of a link that was made anew") << thisBoot << 4 << true << all;
    QTest::newRow("of a link that is not connected")
        << thisBoot << 3 << false << QStringLiteral("wwan0 up 900 down 1800 not watched");
}

void RecordedRowsTest::closesARowAtItsLastUpdate()
{
    QFETCH(QString, bootId);
    QFETCH(int, linkNow);
    QFETCH(bool, isConnectedNow);
    addRow(rowOf(bootId.toStdString(), 3));
    m_atStart = {runningLink(linkNow, "wwan0", 1010, 2020)};
    if (isConnectedNow)
        m_atStart.emplace_back(addressOn(linkNow));
    QVERIFY(start());
    QFETCH(QString, unwatched);
    QCOMPARE(recordsIn(m_path), QStringList({"wwan0 up 100 down 200 recovered", unwatched}));
    const Connection recovered = firstRecord();
    QCOMPARE(recovered.endUtc, std::int64_t{1699999900});
    QCOMPARE(recovered.connectedSeconds, std::int64_t{900});
    QCOMPARE(recovered.profile, std::string("internet"));
    // What is connected now is a connection of its own.
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{isConnectedNow});
    // Who asks for the history after start() finds it there.
    QCoreApplication::processEvents();
    QVERIFY(m_disconnections->isEmpty());
}

/// The process before may have been told of it, or the link had another name then.
void RecordedRowsTest::resumesARowOfALinkThatIsNotWatched()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "usb0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    QTRY_COMPARE(m_connections->size(), 1);
    QCOMPARE(m_connections->first().first().value<ConnectionState>().interfaceName,
             QStringLiteral("usb0"));
    m_links->tell(downLink(3, "usb0", 1011, 2022));
    QCOMPARE(recordsIn(m_path), QStringList("usb0 up 1001 down 2002 normal"));
    m_links->tell(runningLink(3, "usb0", 1011, 2022));
    QVERIFY(openRowsIn(m_path).empty());
}

void RecordedRowsTest::countsNothingTwiceOfALinkThatOutlivedItsRecorder()
{
    OpenConnection row = rowOf(recorder::currentBootId(), 3);
    row.interfaceName = "ppp0";
    row.baseUploaded = 0;
    row.baseDownloaded = 0;
    addRow(row);
    recorder::AddressReport address = addressOn(3);
    address.createdAt = 101;
    m_atStart = {runningLink(3, "ppp0", 150, 260), address};
    QVERIFY(start());
    m_links->tell(downLink(3, "ppp0", 151, 262));
    QCOMPARE(recordsIn(m_path),
             QStringList({"ppp0 up 100 down 200 recovered", "ppp0 up 50 down 60 not watched",
                          "ppp0 up 1 down 2 normal"}));
}

void RecordedRowsTest::recordsBesideARowThatTheStoreDoesNotTake()
{
    addRow(rowOf("another", 3));
    addRow(rowOf("another", 4));
    changeRow(3, "interface_name = 'a name of more than thirty-one bytes'");
    QVERIFY(start());
    const QSignalSpy successes(m_recorder.get(), &ConnectionRecorder::succeeded);
    QTRY_COMPARE(m_failures->size(), 1);
    QVERIFY(successes.isEmpty());
    QVERIFY(lastProblemSeenBy(*m_failures).reason.contains("thirty-one"));
    connectLink(5, "wwan1", 0, 0);
    m_links->tell(downLink(5, "wwan1", 1, 2));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 100 down 200 recovered", "wwan1 up 1 down 2 normal"}));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
}

void RecordedRowsTest::bringsARowIntoTheRangeOfTheStore_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("carrierLosses");
    QTest::addColumn<QStringList>("records");
    const QString lowest = QStringLiteral("-9223372036854775808");
    QTest::newRow("of a connection that lasts")
        << "start_utc = 99999999999, connected_seconds = " + lowest << 0
        << QStringList("wwan0 up 1001 down 2002 normal");
    QTest::newRow("the start of a connection that lasts")
        << "start_boot_ms = " + lowest << 0 << QStringList("wwan0 up 1001 down 2002 normal");
    QTest::newRow("of a former connection")
        << QStringLiteral("updated_utc = 99999999999, uploaded_bytes = -1") << 1
        << QStringList({"wwan0 up 0 down 200 recovered", "wwan0 up 1001 down 1800 not watched",
                        "wwan0 up 1 down 2 normal"});
    QTest::newRow("counters out of range")
        << "base_uploaded = " + lowest + ", start_boot_ms = " + lowest << 1
        << QStringList({"wwan0 up 100 down 200 recovered", "wwan0 up 900 down 1800 not watched",
                        "wwan0 up 1 down 2 normal"});
}

void RecordedRowsTest::bringsARowIntoTheRangeOfTheStore()
{
    QFETCH(QString, change);
    QFETCH(int, carrierLosses);
    addRow(rowOf(recorder::currentBootId(), 3));
    changeRow(3, change);
    recorder::LinkReport link = runningLink(3, "wwan0", 1010, 2020);
    link.carrierLosses = std::uint32_t(carrierLosses);
    m_atStart = {link, addressOn(3)};
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", 1011, 2022));
    QTEST(recordsIn(m_path), "records");
    QVERIFY(openRowsIn(m_path).empty());
}

/// What a row is behind by is in the store before anything else can happen.
void RecordedRowsTest::bringsARowUpToDateAtOnce()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{1000});
}

QTEST_GUILESS_MAIN(RecordedRowsTest)

#include "tst_recordedrows.moc"
