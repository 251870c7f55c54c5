// SPDX-License-Identifier: MIT
#include "RecorderTest.h"
#include "StoreLock.h"

using history::Connection;
using recorder::ConnectionRecorder;

/// What happens while the store is locked, and is written late.
class LateRowsTest : public RecorderTest
{
    Q_OBJECT

private slots:
    void resumesARowThatItCouldNotWriteInTime_data();
    void resumesARowThatItCouldNotWriteInTime();
    void tellsOfARowThatItCouldNotCloseInTime();
    void addsUpWhatALateRowMissed();
    void keepsTheMarkThatALateRowMissed();
    void leavesOutNothingThatIsNotRecordedTwice();
};

void LateRowsTest::resumesARowThatItCouldNotWriteInTime_data()
{
    QTest::addColumn<bool>("isAnotherToBeClosed");
    QTest::newRow("when all else is settled") << false;
    QTest::newRow("while another row cannot be closed") << true;
}

void LateRowsTest::resumesARowThatItCouldNotWriteInTime()
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

void LateRowsTest::tellsOfARowThatItCouldNotCloseInTime()
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

/// Before this process looks, and while it cannot write.
void LateRowsTest::addsUpWhatALateRowMissed()
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

/// Or the next process would take it for another connection.
void LateRowsTest::keepsTheMarkThatALateRowMissed()
{
    QVERIFY(start());
    StoreLock lock(m_path);
    connectLink(3, "wwan0", 0, 0);
    m_links->tell(recorder::AddressReport{3, "another address", true, false, 101});
    m_links->tell(addressGoneFrom(3));
    lock.release();
    const auto rowsAfterAnswer = [this] {
        m_links->tell(runningLink(3, "wwan0", 0, 0));
        return openRowsIn(m_path);
    };
    QTRY_COMPARE_WITH_TIMEOUT(rowsAfterAnswer().size(), std::size_t{1}, checkpointTimeout);
    QCOMPARE(openRowsIn(m_path).front().linkMark, std::string("0/101"));
}

/// The row of before ends where the late one begins.
void LateRowsTest::leavesOutNothingThatIsNotRecordedTwice()
{
    addRow(rowOf(recorder::currentBootId(), 3));
    StoreLock lock(m_path);
    m_atStart = {downLink(3, "wwan0", 110, 220)};
    QVERIFY(start());
    m_links->tell(addressOn(3));
    m_links->tell(runningLink(3, "wwan0", 112, 223));
    m_links->tell(downLink(3, "wwan0", 115, 227));
    lock.release();
    QTRY_COMPARE_WITH_TIMEOUT(
        recordsIn(m_path),
        QStringList({"wwan0 up 100 down 200 recovered", "wwan0 up 5 down 7 normal"}),
        checkpointTimeout);
}

QTEST_GUILESS_MAIN(LateRowsTest)

#include "tst_laterows.moc"
