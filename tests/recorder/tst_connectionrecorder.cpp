// SPDX-License-Identifier: MIT
#include "RecorderTest.h"

#include <QThread>

#include <limits>

using history::Connection;
using recorder::ConnectionRecorder;
using recorder::Problem;

class ConnectionRecorderTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void recordsMobileAndNamedInterfacesOnly_data();
    void recordsMobileAndNamedInterfacesOnly();
    void takesTheFinalCountersMinusThoseAtTheStart();
    void takesTheFinalCountersOfALinkThatIsDeleted();
    void asksForTheFinalCountersWhenTheAddressGoes();
    void aNewAddressBeforeTheFinalCountersIsAnotherConnection();
    void aNewIndexIsAnotherConnection();
    void lastsUnderAnotherName();
    void marksAsRecoveredWhatEndedWhileMessagesWereLost();
    void aCounterThatGoesBackwardsIsANewBase();
    void aResetBeforeTheStartIsNone();
    void countsBeyond32Bits();
    void countsUpTo63Bits();
    void tellsOfATimeThatTheHistoryCannotHold();
    void measuresTimeWithAClockThatNeverJumps_data();
    void measuresTimeWithAClockThatNeverJumps();
    void aConnectionBearsItsInterfacesNameOrTheGivenOne();
    void tellsHowManyBytesASecondHaveMoved();
    void saysNothingFromWithinACall();
    void worksOnAThreadOfItsOwn();
    void saysWhyItCannotStart();
    void startsWhenItCan();
};

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

void ConnectionRecorderTest::lastsUnderAnotherName()
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
    m_links->dumpAnew({});
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
    QCOMPARE(lastProblemSeenBy(*m_failures).kind, Problem::Kind::ClockOutOfRange);
    QCOMPARE(lastProblemSeenBy(*m_failures).standInUtc, history::largestTime);
    m_clock->utc = -1;
    connectLink(3, "wwan0", 5, 6);
    QTRY_COMPARE(m_failures->size(), 2);
    QCOMPARE(lastProblemSeenBy(*m_failures).standInUtc, 0);
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

void ConnectionRecorderTest::tellsHowManyBytesASecondHaveMoved()
{
    QVERIFY(start());
    connectLink(3, "wwan0", 0, 0);
    const QSignalSpy states(m_recorder.get(), &ConnectionRecorder::stateChanged);
    QTRY_VERIFY(!m_links->requests.empty()); // with a tick
    m_clock->pass(4000);
    m_links->tell(runningLink(3, "wwan0", 4004, 9002));
    QTRY_COMPARE(states.size(), 1);
    const auto state = states.first().first().value<recorder::ConnectionState>();
    QCOMPARE(state.uploadRate, qint64(1001));
    QCOMPARE(state.downloadRate, qint64(2250));
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
    auto *const recorder = new ConnectionRecorder(
        m_path, {}, std::move(links), std::make_unique<FakePorts>(), std::make_unique<FakeClock>());
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

void ConnectionRecorderTest::saysWhyItCannotStart()
{
    m_path = m_folder->path();
    QVERIFY(!start());
    QTRY_COMPARE(m_failures->size(), 1);
    QCOMPARE(lastProblemSeenBy(*m_failures).reason,
             QStringLiteral("\"%1\" is not a connection history but a folder; it was left as it "
                            "is, move it away or name another file.")
                 .arg(m_path));
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

QTEST_GUILESS_MAIN(ConnectionRecorderTest)

#include "tst_connectionrecorder.moc"
