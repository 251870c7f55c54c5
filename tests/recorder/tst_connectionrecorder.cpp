// SPDX-License-Identifier: MIT
#include "recorder/ConnectionRecorder.h"

#include "FakeClock.h"
#include "FakeLinks.h"
#include "RecordText.h"
#include "ShortIntervals.h"
#include "StoreLock.h"

#include <SQLiteCpp/Database.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <limits>
#include <memory>
#include <thread>

using history::Connection;
using history::OpenConnection;
using history::Store;
using recorder::ConnectionRecorder;
using recorder::ConnectionState;

namespace
{

/// A loaded machine is slow.
constexpr int checkpointTimeout = 30000;

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

} // namespace

class ConnectionRecorderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void recordsMobileAndNamedInterfacesOnly_data();
    void recordsMobileAndNamedInterfacesOnly();
    void takesTheFinalCountersMinusThoseAtTheStart();
    void takesTheFinalCountersOfALinkThatIsDeleted();
    void asksForTheFinalCountersWhenTheAddressGoes();
    void aNewAddressBeforeTheFinalCountersIsAnotherConnection();
    void aNewIndexIsAnotherConnection();
    void goesOnUnderAnotherName();
    void marksAsRecoveredWhatEndedWhileMessagesWereLost();

    void aCounterThatGoesBackwardsIsANewBase();
    void aResetBeforeTheStartIsNone();
    void countsBeyond32Bits();
    void countsUpTo63Bits();
    void tellsOfATimeThatTheHistoryCannotHold();

    void measuresTimeWithAClockThatNeverJumps_data();
    void measuresTimeWithAClockThatNeverJumps();

    void aConnectionIsARowFromTheMomentItBegins();
    void bringsTheRowUpToDate();
    void leavesTheRowOpenWhenTheProgramEnds();
    void takesWhatHasHappenedWhenTheProgramEnds();
    void writesTheRowAnewWhenTheFileIsReplaced();
    void resumesARowOfTheSameLink();
    void aLinkThatWasConnectedAnewIsAnotherConnection_data();
    void aLinkThatWasConnectedAnewIsAnotherConnection();
    void aResumedLinkThatWasResetIsMarked();
    void closesARowAtItsLastUpdate_data();
    void closesARowAtItsLastUpdate();
    void goesOnWithARowOfALinkThatIsNotWatched();
    void countsNothingTwiceOfALinkThatOutlivedItsRecorder();
    void goesOnWithARowThatItCouldNotWriteInTime_data();
    void goesOnWithARowThatItCouldNotWriteInTime();
    void tellsOfARowThatItCouldNotCloseInTime();
    void recordsBesideARowThatTheStoreDoesNotTake();
    void bringsARowIntoTheRangeOfTheStore_data();
    void bringsARowIntoTheRangeOfTheStore();
    void bringsARowUpToDateAtOnce();
    void addsUpWhatALateRowMissed();

    void keepsWhatItCannotWriteAndTriesAgain();
    void saysWhenItCanWriteAgain();
    void saysNothingOfALockThatDoesNotLast();
    void isNotHeldUpByALockedStore();
    void aStoreIsTheSameByAnyName();
    void recordsWhateverAKilledRecorderLeftOfItsLock_data();
    void recordsWhateverAKilledRecorderLeftOfItsLock();
    void leavesNoLockBehind();
    void saysWhyItCannotLock();
    void settlesNothingWhileItCannotSeeTheLinks();
    void saysWhyItCannotStart();
    void leavesTheRecordingToTheFirstRecorder();
    void takesOverWhenTheFirstRecorderEnds();
    void startsWhenItCan();

    void aConnectionBearsItsInterfacesNameOrTheGivenOne();
    void saysNothingFromWithinACall();
    void worksOnAThreadOfItsOwn();

private:
    bool start(const QStringList &interfaceNames = {});
    void connectLink(int index, const std::string &name, std::int64_t uploaded,
                     std::int64_t downloaded);
    void addRow(const OpenConnection &row);
    void changeRow(int interfaceIndex, const QString &change);
    Connection firstRecord();

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::vector<recorder::LinkNews> m_atStart;
    FakeClock m_clockAtStart;
    FakeLinks *m_links = nullptr; ///< the recorder's
    FakeClock *m_clock = nullptr; ///< the recorder's
    std::unique_ptr<ConnectionRecorder> m_recorder;
    std::unique_ptr<QSignalSpy> m_connections;
    std::unique_ptr<QSignalSpy> m_disconnections;
    std::unique_ptr<QSignalSpy> m_failures;
};

void ConnectionRecorderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath("connections.db");
    m_atStart.clear();
    m_clockAtStart = FakeClock();
}

void ConnectionRecorderTest::cleanup()
{
    m_recorder.reset();
    m_folder.reset();
}

bool ConnectionRecorderTest::start(const QStringList &interfaceNames)
{
    auto links = std::make_unique<FakeLinks>();
    auto clock = std::make_unique<FakeClock>(m_clockAtStart);
    m_links = links.get();
    m_clock = clock.get();
    m_links->atStart = m_atStart;
    m_recorder = std::make_unique<ConnectionRecorder>(m_path, interfaceNames, std::move(links),
                                                      std::move(clock), shortIntervals);
    m_connections = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::connected);
    m_disconnections =
        std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::disconnected);
    m_failures = std::make_unique<QSignalSpy>(m_recorder.get(), &ConnectionRecorder::failed);
    return m_recorder->start();
}

void ConnectionRecorderTest::connectLink(int index, const std::string &name, std::int64_t uploaded,
                                         std::int64_t downloaded)
{
    m_links->tell(downLink(index, name, uploaded, downloaded));
    m_links->tell(addressOn(index));
    m_links->tell(runningLink(index, name, uploaded, downloaded));
}

void ConnectionRecorderTest::addRow(const OpenConnection &row)
{
    auto store = Store::openOrCreate(m_path.toStdString());
    QVERIFY(store);
    QVERIFY(store.value().begin(row));
}

/// As a damaged disk might.
void ConnectionRecorderTest::changeRow(int interfaceIndex, const QString &change)
{
    const QString update =
        QStringLiteral("UPDATE open_connection SET %1 WHERE interface_index = %2")
            .arg(change)
            .arg(interfaceIndex);
    SQLite::Database(m_path.toStdString(), SQLite::OPEN_READWRITE).exec(update.toStdString());
}

Connection ConnectionRecorderTest::firstRecord()
{
    const auto store = Store::openForReading(m_path.toStdString());
    const auto list = store.value().list();
    return list.value().empty() ? Connection() : list.value().front();
}

void ConnectionRecorderTest::recordsMobileAndNamedInterfacesOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isRecorded");
    QTest::newRow("PPP") << QStringLiteral("ppp0") << true;
    QTest::newRow("mobile broadband") << QStringLiteral("wwan12") << true;
    QTest::newRow("mobile broadband named after its place") << QStringLiteral("wwan0u1i4") << true;
    QTest::newRow("named by the user") << QStringLiteral("usb0") << true;
    QTest::newRow("another one") << QStringLiteral("eth0") << false;
    QTest::newRow("a longer name than the user's") << QStringLiteral("usb01") << false;
    QTest::newRow("loopback") << QStringLiteral("lo") << false;
}

void ConnectionRecorderTest::recordsMobileAndNamedInterfacesOnly()
{
    QFETCH(QString, name);
    QFETCH(bool, isRecorded);
    QVERIFY(start({QStringLiteral("usb0")}));
    connectLink(3, name.toStdString(), 0, 0);
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{isRecorded});
}

void ConnectionRecorderTest::takesTheFinalCountersMinusThoseAtTheStart()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 1000, 2000);
    m_links->tell(downLink(3, "wwan0", 1566, 52000));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 566 down 50000 normal"));
    QTRY_COMPARE(recordsSeenBy(*m_disconnections), recordsIn(m_path));
    QVERIFY(openRowsIn(m_path).empty());
}

void ConnectionRecorderTest::takesTheFinalCountersOfALinkThatIsDeleted()
{
    QVERIFY(start());
    connectLink(3, "ppp0", 0, 0);
    m_links->tell(goneLink(3, "ppp0", 12, 34));
    QCOMPARE(recordsIn(m_path), QStringList("ppp0 up 12 down 34 normal"));
}

void ConnectionRecorderTest::asksForTheFinalCountersWhenTheAddressGoes()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_clock->pass(60000);
    m_links->tell(addressGoneFrom(3));
    QVERIFY(recordsIn(m_path).isEmpty());
    QCOMPARE(m_links->requests, std::vector<int>{3});
    m_clock->pass(9000);
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5 down 6 normal"));
    QCOMPARE(firstRecord().connectedSeconds, std::int64_t{60});
}

void ConnectionRecorderTest::aNewAddressBeforeTheFinalCountersIsAnotherConnection()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(addressGoneFrom(3));
    m_links->tell(addressOn(3));
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    m_links->tell(downLink(3, "wwan0", 15, 26));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 5 down 6 normal", "wwan0 up 10 down 20 normal"}));
}

void ConnectionRecorderTest::aNewIndexIsAnotherConnection()
{
    QVERIFY(start());
    connectLink(3, "ppp0", 0, 0);
    m_links->tell(goneLink(3, "ppp0", 5, 6));
    connectLink(4, "ppp0", 0, 0);
    m_links->tell(goneLink(4, "ppp0", 7, 8));
    QCOMPARE(recordsIn(m_path),
             QStringList({"ppp0 up 5 down 6 normal", "ppp0 up 7 down 8 normal"}));
}

void ConnectionRecorderTest::goesOnUnderAnotherName()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(runningLink(3, "modem", 1, 1));
    m_links->tell(downLink(3, "modem", 2, 3));
    QCOMPARE(recordsIn(m_path), QStringList("modem up 2 down 3 normal"));
}

void ConnectionRecorderTest::marksAsRecoveredWhatEndedWhileMessagesWereLost()
{
    QVERIFY(start());
    connectLink(3, "ppp0", 0, 0);
    m_links->tell(runningLink(3, "ppp0", 70, 80));
    m_links->relist({});
    QCOMPARE(recordsIn(m_path), QStringList("ppp0 up 70 down 80 recovered"));
}

void ConnectionRecorderTest::aCounterThatGoesBackwardsIsANewBase()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 1000, 1000);
    m_links->tell(runningLink(3, "wwan0", 6000, 3000));
    m_links->tell(runningLink(3, "wwan0", 100, 4000));
    m_links->tell(downLink(3, "wwan0", 150, 4001));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5050 down 3001 counter reset"));
}

void ConnectionRecorderTest::aResetBeforeTheStartIsNone()
{
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", 1000, 1000));
    m_links->tell(addressOn(3));
    m_links->tell(runningLink(3, "wwan0", 0, 0));
    m_links->tell(downLink(3, "wwan0", 40, 50));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 40 down 50 normal"));
}

void ConnectionRecorderTest::countsBeyond32Bits()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 4294967290, 1);
    m_links->tell(downLink(3, "wwan0", 4294967300, 5000000001));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 10 down 5000000000 normal"));
}

/// Of a connection that is resumed too.
void ConnectionRecorderTest::countsUpTo63Bits()
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t atStart = largest - 5000;
    m_atStart = {runningLink(3, "wwan0", atStart, atStart), addressOn(3)};
    QVERIFY(start());
    m_links->toCome = {runningLink(3, "wwan0", atStart + 10, atStart + 20)};
    m_recorder.reset();
    m_clockAtStart.pass(3000);
    m_atStart = {runningLink(3, "wwan0", atStart + 100, atStart + 200), addressOn(3)};
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", largest, largest));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5000 down 5000 normal"));
}

void ConnectionRecorderTest::tellsOfATimeThatTheHistoryCannotHold()
{
    m_clockAtStart.utc = history::largestTime + 1;
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(downLink(3, "wwan0", 5, 6));
    QTRY_COMPARE(m_disconnections->size(), 1);
    QCOMPARE(firstRecord().startUtc, history::largestTime);
    QCOMPARE(m_failures->size(), 1);
    QCOMPARE(m_failures->first().first().toString(),
             QStringLiteral("The system's clock shows a time that the history cannot hold, so "
                            "connections get 2106-02-07 06:28:15 UTC instead; set the clock."));
    m_clock->utc = -1;
    connectLink(3, "wwan0", 5, 6);
    QTRY_COMPARE(m_failures->size(), 2);
    QVERIFY(m_failures->last().first().toString().contains("1970-01-01 00:00:00 UTC"));
}

void ConnectionRecorderTest::measuresTimeWithAClockThatNeverJumps_data()
{
    constexpr std::int64_t start = 1700000000;
    constexpr std::int64_t threeDays = 3 * 86400;
    QTest::addColumn<std::int64_t>("jump");
    QTest::addColumn<std::int64_t>("end");
    QTest::newRow("an hour forward") << std::int64_t{3600} << start + 90 + 3600;
    QTest::newRow("three days forward") << threeDays << start + 90 + threeDays;
    QTest::newRow("a minute back") << std::int64_t{-60} << start + 30;
    // Nothing ends before it began: the start plus the time connected stands in.
    QTest::newRow("an hour back") << std::int64_t{-3600} << start + 90;
    QTest::newRow("three days back") << -threeDays << start + 90;
}

void ConnectionRecorderTest::measuresTimeWithAClockThatNeverJumps()
{
    QFETCH(std::int64_t, jump);
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_clock->boot += 30000;
    m_clock->utc += 30 + jump;
    m_links->tell(runningLink(3, "wwan0", 1, 1));
    m_clock->boot += 60500;
    m_clock->utc += 60;
    m_links->tell(downLink(3, "wwan0", 7, 9));
    const Connection record = firstRecord();
    QCOMPARE(record.connectedSeconds, std::int64_t{90});
    QCOMPARE(record.startUtc, std::int64_t{1700000000});
    QTEST(record.endUtc, "end");
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 7 down 9 normal"));
}

void ConnectionRecorderTest::aConnectionIsARowFromTheMomentItBegins()
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

void ConnectionRecorderTest::bringsTheRowUpToDate()
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

void ConnectionRecorderTest::leavesTheRowOpenWhenTheProgramEnds()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(runningLink(3, "wwan0", 70, 80));
    m_recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{70});
    QVERIFY(recordsIn(m_path).isEmpty());
}

void ConnectionRecorderTest::takesWhatHasHappenedWhenTheProgramEnds()
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

void ConnectionRecorderTest::writesTheRowAnewWhenTheFileIsReplaced()
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

void ConnectionRecorderTest::aLinkThatWasConnectedAnewIsAnotherConnection_data()
{
    QTest::addColumn<int>("carrierLosses");
    QTest::addColumn<int>("addressCreatedAt");
    QTest::newRow("its line had been lost") << 1 << 100;
    QTest::newRow("its address is a new one") << 0 << 101;
}

void ConnectionRecorderTest::aLinkThatWasConnectedAnewIsAnotherConnection()
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

void ConnectionRecorderTest::resumesARowOfTheSameLink()
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

void ConnectionRecorderTest::aResumedLinkThatWasResetIsMarked()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 50, 50), addressOn(3)};
    QVERIFY(start());
    m_links->tell(downLink(3, "wwan0", 57, 58));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 107 down 208 counter reset"));
}

void ConnectionRecorderTest::closesARowAtItsLastUpdate_data()
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

void ConnectionRecorderTest::closesARowAtItsLastUpdate()
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
void ConnectionRecorderTest::goesOnWithARowOfALinkThatIsNotWatched()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "usb0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    QTRY_COMPARE(m_connections->size(), 1);
    m_links->tell(downLink(3, "usb0", 1011, 2022));
    QCOMPARE(recordsIn(m_path), QStringList("usb0 up 1001 down 2002 normal"));
    m_links->tell(runningLink(3, "usb0", 1011, 2022));
    QVERIFY(openRowsIn(m_path).empty());
}

void ConnectionRecorderTest::countsNothingTwiceOfALinkThatOutlivedItsRecorder()
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

void ConnectionRecorderTest::goesOnWithARowThatItCouldNotWriteInTime_data()
{
    QTest::addColumn<bool>("isAnotherToBeClosed");
    QTest::newRow("when all else is settled") << false;
    QTest::newRow("while another row cannot be closed") << true;
}

void ConnectionRecorderTest::goesOnWithARowThatItCouldNotWriteInTime()
{
    QFETCH(bool, isAnotherToBeClosed);
    QStringList expected;
    if (isAnotherToBeClosed) {
        addRow(rowOf(recorder::currentBootId(), 9));
        expected = QStringList("wwan0 up 100 down 200 recovered");
    }
    addRow(rowOf(recorder::currentBootId(), 3));
    StoreLock lock(m_path);
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    m_recorder->setProfileName(QStringLiteral("another"));
    m_links->tell(downLink(3, "wwan0", 1020, 2040));
    recorder::LinkReport again = runningLink(3, "wwan0", 1020, 2040);
    again.carrierLosses = 1;
    m_links->tell(again);
    lock.release();
    expected << QStringLiteral("wwan0 up 1010 down 2020 normal");
    QTRY_COMPARE_WITH_TIMEOUT(recordsIn(m_path), expected, checkpointTimeout);
    m_links->tell(downLink(3, "wwan0", 1025, 2046));
    expected << QStringLiteral("wwan0 up 5 down 6 normal");
    QCOMPARE(recordsIn(m_path), expected);
    QTRY_VERIFY(m_disconnections->size() >= 2);
    QCOMPARE(m_disconnections->last().first().value<Connection>().profile, std::string("another"));
    QVERIFY(openRowsIn(m_path).empty());
}

void ConnectionRecorderTest::tellsOfARowThatItCouldNotCloseInTime()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    StoreLock lock(m_path);
    QVERIFY(start());
    QSignalSpy successes(m_recorder.get(), &ConnectionRecorder::succeeded);
    m_clock->pass(5000);
    QTRY_COMPARE(m_failures->size(), 1);
    lock.release();
    QTRY_COMPARE_WITH_TIMEOUT(m_disconnections->size(), 1, checkpointTimeout);
    QCOMPARE(m_disconnections->first().at(0).value<Connection>().uploadedBytes, std::int64_t{100});
    QCOMPARE(m_disconnections->first().at(1).toLongLong(), 0);
    QTRY_COMPARE(successes.size(), 1);
}

void ConnectionRecorderTest::recordsBesideARowThatTheStoreDoesNotTake()
{
    addRow(rowOf("another", 3));
    addRow(rowOf("another", 4));
    changeRow(3, "interface_name = 'a name of more than thirty-one bytes'");
    QVERIFY(start());
    QTRY_COMPARE(m_failures->size(), 1);
    QVERIFY(m_failures->first().first().toString().contains("thirty-one"));
    connectLink(5, "wwan1", 0, 0);
    m_links->tell(downLink(5, "wwan1", 1, 2));
    QCOMPARE(recordsIn(m_path),
             QStringList({"wwan0 up 100 down 200 recovered", "wwan1 up 1 down 2 normal"}));
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
}

void ConnectionRecorderTest::bringsARowIntoTheRangeOfTheStore_data()
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

void ConnectionRecorderTest::bringsARowIntoTheRangeOfTheStore()
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
void ConnectionRecorderTest::bringsARowUpToDateAtOnce()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    m_atStart = {runningLink(3, "wwan0", 1010, 2020), addressOn(3)};
    QVERIFY(start());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{1000});
}

/// Before this process looks, and while it cannot write.
void ConnectionRecorderTest::addsUpWhatALateRowMissed()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    StoreLock lock(m_path);
    m_atStart = {runningLink(3, "wwan0", 50, 2020), addressOn(3)};
    QVERIFY(start());
    m_links->tell(runningLink(3, "wwan0", 55, 2030));
    m_links->tell(runningLink(3, "wwan0", 55, 7));
    lock.release();
    m_links->tell(downLink(3, "wwan0", 56, 8));
    // 100 before the first reset, 5 and 1 after it; 2010 before the second, 1 after it.
    QTRY_COMPARE_WITH_TIMEOUT(
        recordsIn(m_path), QStringList("wwan0 up 106 down 2011 counter reset"), checkpointTimeout);
}

void ConnectionRecorderTest::keepsWhatItCannotWriteAndTriesAgain()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    StoreLock lock(m_path);
    m_links->tell(downLink(3, "wwan0", 5, 6));
    // The next connection of the same link must not be taken for the former one.
    m_links->tell(runningLink(3, "wwan0", 5, 6));
    m_clock->pass(5000);
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(m_failures->first().first().toString(),
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

void ConnectionRecorderTest::saysWhenItCanWriteAgain()
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

void ConnectionRecorderTest::saysNothingOfALockThatDoesNotLast()
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
void ConnectionRecorderTest::isNotHeldUpByALockedStore()
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

void ConnectionRecorderTest::leavesTheRecordingToTheFirstRecorder()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    const std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    FakeLinks *const links = m_links;
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    QVERIFY(m_failures->first().first().toString().contains(
        QString::number(QCoreApplication::applicationPid())));
    m_recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(!ConnectionRecorder(m_path).start());
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    links->tell(downLink(3, "wwan0", 5, 6));
    QCOMPARE(recordsIn(m_path), QStringList("wwan0 up 5 down 6 normal"));
}

void ConnectionRecorderTest::aStoreIsTheSameByAnyName()
{
    QVERIFY(start());
    const std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    const QString link = m_folder->filePath(QStringLiteral("link.db"));
    QVERIFY(QFile::link(m_path, link));
    m_path = link;
    QVERIFY(!start());
}

void ConnectionRecorderTest::recordsWhateverAKilledRecorderLeftOfItsLock_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray process = QByteArray::number(QCoreApplication::applicationPid());
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half of a number") << process.left(1);
    QTest::newRow("a number that another process has now") << QByteArray("1\nsystemd\n");
    QTest::newRow("a number that this process has now")
        << process + '\n' + QCoreApplication::applicationName().toUtf8() + '\n';
}

void ConnectionRecorderTest::recordsWhateverAKilledRecorderLeftOfItsLock()
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
    QCOMPARE(m_failures->first().first().toString(),
             QStringLiteral("Connections are recorded by another %1 already (process %2), and "
                            "appear here when they have ended.")
                 .arg(QCoreApplication::applicationName())
                 .arg(QCoreApplication::applicationPid()));
}

void ConnectionRecorderTest::leavesNoLockBehind()
{
    QVERIFY(start());
    std::unique_ptr<ConnectionRecorder> first = std::move(m_recorder);
    QVERIFY(!start());
    m_recorder.reset();
    QVERIFY(QFile::exists(m_path + ".recorder"));
    first.reset();
    QVERIFY(!QFile::exists(m_path + ".recorder"));
}

void ConnectionRecorderTest::saysWhyItCannotLock()
{
    const QString lock = m_path + ".recorder";
    QVERIFY(QDir().mkdir(lock));
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(m_failures->first().first().toString(),
             QStringLiteral("Connections are not recorded, for %1 is in the way of the lock (it "
                            "is not a file); move it away.")
                 .arg(lock));
}

void ConnectionRecorderTest::takesOverWhenTheFirstRecorderEnds()
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

void ConnectionRecorderTest::startsWhenItCan()
{
    QVERIFY(QDir().mkdir(m_path));
    m_atStart = {runningLink(3, "wwan0", 0, 0), addressOn(3)};
    QVERIFY(!start());
    QVERIFY(QDir().rmdir(m_path));
    QTRY_COMPARE(m_connections->size(), 1);
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
}

void ConnectionRecorderTest::settlesNothingWhileItCannotSeeTheLinks()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    auto links = std::make_unique<FakeLinks>();
    links->isBlind = true;
    auto recorder = std::make_unique<ConnectionRecorder>(m_path, QStringList(), std::move(links),
                                                         std::make_unique<FakeClock>());
    QVERIFY(!recorder->start());
    recorder.reset();
    QCOMPARE(openRowsIn(m_path).size(), std::size_t{1});
    QVERIFY(recordsIn(m_path).isEmpty());
}

void ConnectionRecorderTest::saysWhyItCannotStart()
{
    m_path = m_folder->path();
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(m_failures->first().first().toString(),
             QStringLiteral("\"%1\" is not a connection history but a folder; it was left as it "
                            "is, move it away or name another file.")
                 .arg(m_path));
}

void ConnectionRecorderTest::aConnectionBearsItsInterfacesNameOrTheGivenOne()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    connectLink(4, "wwan1", 0, 0);
    m_links->tell(downLink(3, "wwan0", 0, 0));
    QCOMPARE(firstRecord().profile, std::string("wwan0"));
    m_recorder->setProfileName(QStringLiteral("internet"));
    m_links->tell(downLink(4, "wwan1", 0, 0));
    QTRY_COMPARE(m_disconnections->size(), 2);
    QCOMPARE(m_disconnections->last().first().value<Connection>().profile, std::string("internet"));
}

void ConnectionRecorderTest::saysNothingFromWithinACall()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(downLink(3, "wwan0", 0, 0));
    QVERIFY(m_connections->isEmpty());
    QVERIFY(m_disconnections->isEmpty());
    QTRY_COMPARE(m_connections->size(), 1);
    QTRY_COMPARE(m_disconnections->size(), 1);
}

void ConnectionRecorderTest::worksOnAThreadOfItsOwn()
{
    QThread thread;
    auto links = std::make_unique<FakeLinks>();
    links->atStart = {runningLink(3, "ppp0", 10, 20), addressOn(3)};
    auto *const recorder =
        new ConnectionRecorder(m_path, {}, std::move(links), std::make_unique<FakeClock>());
    QSignalSpy connections(recorder, &ConnectionRecorder::connected);
    recorder->moveToThread(&thread);
    QObject::connect(&thread, &QThread::started, recorder, &ConnectionRecorder::start);
    QObject::connect(&thread, &QThread::finished, recorder, &QObject::deleteLater);
    thread.start();
    QTRY_COMPARE(connections.size(), 1);
    thread.quit();
    QVERIFY(thread.wait());
    QCOMPARE(openRowsIn(m_path).front().uploadedBytes, std::int64_t{10});
}

QTEST_GUILESS_MAIN(ConnectionRecorderTest)

#include "tst_connectionrecorder.moc"
