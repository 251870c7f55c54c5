// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "RecordStoreTest.h"
#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

/// What the store asks of the SDK, keeps and removes.
class tst_RecordStore : public RecordStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOnePerProcess();
    void startsEmpty();
    void logsItsLife();
    void fetchesEveryRecord();
    void succeedsWithoutRecords();
    void keepsTheMapWhenTheSdkFails();
    void reportsANullArrayOnce_data();
    void reportsANullArrayOnce();
    void replacesRecordsOfTheSameKey();
    void logsAFetch();
    void removesOneRecordInTheSdkOnly();
    void reportsAFailedRemoval();
    void removesTheFirstRecordUntilAllAreGone();
    void removesAllDespiteFailures();
    void removesNothingFromAnEmptyMap();
    void logsRemovals();
};

void tst_RecordStore::isOnePerProcess()
{
    QCOMPARE(NetInfoRecordLogic::Instance(), m_logic);
    NetInfoRecordLogic::Destroy();
    NetInfoRecordLogic::Destroy();
    m_logic = NetInfoRecordLogic::Instance();
    QVERIFY(m_logic);
    QVERIFY(m_logic->m_records.isEmpty());
}

void tst_RecordStore::startsEmpty()
{
    QVERIFY(m_logic->m_records.isEmpty());
    QVERIFY(m_logic->m_accumulateRecords.isEmpty());
    const ConnectionRecord &last = m_logic->m_lastRecord;
    QCOMPARE(last.m_nRecordId, -1);
    for (const QString &text :
         {last.m_strProfileName, last.m_strStartTime, last.m_strEndTime, last.m_strReserved,
          last.m_strUploaded, last.m_strDownloaded, last.m_strExtraText1, last.m_strExtraText2,
          last.m_strConnectedTime})
        QVERIFY(text.isEmpty() && !text.isNull());
    QVERIFY(Host::instance().calls.isEmpty());
}

void tst_RecordStore::logsItsLife()
{
    NetInfoRecordLogic::Destroy();
    LogCapture log;
    m_logic = NetInfoRecordLogic::Instance();
    QCOMPARE(log.take(), (QStringList{timeFirst("Start", "Instance", 85),
                                      timeFirst("Start", "NetInfoRecordLogic", 34),
                                      timeFirst("End  ", "NetInfoRecordLogic", 36),
                                      timeFirst("End  ", "Instance", 91)}));
    NetInfoRecordLogic::Instance();
    QCOMPARE(log.take(),
             (QStringList{timeFirst("Start", "Instance", 85), timeFirst("End  ", "Instance", 91)}));
    NetInfoRecordLogic::Destroy();
    m_logic = nullptr;
    QCOMPARE(log.take(), (QStringList{timeFirst("Start  ", "Destroy", 111),
                                      timeFirst("Start", "~NetInfoRecordLogic", 58),
                                      timeFirst("End  ", "~NetInfoRecordLogic", 60),
                                      timeFirst("End  ", "Destroy", 115)}));
    NetInfoRecordLogic::Destroy();
    QCOMPARE(log.take(), (QStringList{timeFirst("Start  ", "Destroy", 111),
                                      timeFirst("End  ", "Destroy", 115)}));
}

void tst_RecordStore::fetchesEveryRecord()
{
    for (int i = 0; i < 20; ++i)
        Host::instance().records.append(plainRecord(QString::number(i)));
    QVERIFY(m_logic->GetAllConnectedRecords());
    QCOMPARE(m_logic->m_records.size(), 20);
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(m_logic->m_records.value(i)->m_nRecordId, i);
        QCOMPARE(m_logic->m_records.value(i)->m_strProfileName, QString::number(i));
    }
    QCOMPARE(Host::instance().calls,
             (QStringList{"GetAllConnRecord()", "ReleaseConnRecord(array)"}));
}

void tst_RecordStore::succeedsWithoutRecords()
{
    QVERIFY(m_logic->GetAllConnectedRecords());
    QVERIFY(m_logic->m_records.isEmpty());
    QCOMPARE(Host::instance().calls.filter(QStringLiteral("Release")).size(), 1);
}

void tst_RecordStore::keepsTheMapWhenTheSdkFails()
{
    Host::instance().records.append(plainRecord(QStringLiteral("earlier")));
    QVERIFY(m_logic->GetAllConnectedRecords());
    Host::instance().records.append(plainRecord());
    Host::instance().getAllStatus = -3;
    QVERIFY(!m_logic->GetAllConnectedRecords());
    QCOMPARE(m_logic->m_records.size(), 1);
    QCOMPARE(m_logic->m_records.value(0)->m_strProfileName, QStringLiteral("earlier"));
    QCOMPARE(Host::instance().calls.last(), QStringLiteral("ReleaseConnRecord(array)"));
}

void tst_RecordStore::reportsANullArrayOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("reports");
    QTest::newRow("no records") << 0 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("many") << 2147483647 << 1;
    QTest::newRow("negative") << -1 << 0;
}

void tst_RecordStore::reportsANullArrayOnce()
{
    QFETCH(int, count);
    Host::instance().handsOutNullArray = true;
    Host::instance().nullArrayCount = count;
    LogCapture log;
    QVERIFY(m_logic->GetAllConnectedRecords());
    QVERIFY(m_logic->m_records.isEmpty());
    QTEST(static_cast<int>(log.takeAbout(QStringLiteral("Arg is NULL")).size()), "reports");
    QCOMPARE(Host::instance().calls.last(), QStringLiteral("ReleaseConnRecord(null)"));
}

void tst_RecordStore::replacesRecordsOfTheSameKey()
{
    Host::instance().records.append(plainRecord(QStringLiteral("first")));
    m_logic->GetAllConnectedRecords();
    const ConnectionRecord *first = m_logic->m_records.value(0);
    Host::instance().records[0] = plainRecord(QStringLiteral("second"));
    m_logic->GetAllConnectedRecords();
    QCOMPARE(m_logic->m_records.size(), 1);
    QCOMPARE(m_logic->m_records.value(0)->m_strProfileName, QStringLiteral("second"));
    QCOMPARE(first->m_strProfileName, QStringLiteral("first")); // lost to the map, not freed
    delete first;
}

void tst_RecordStore::logsAFetch()
{
    Host::instance().getAllStatus = -12;
    LogCapture log;
    m_logic->GetAllConnectedRecords();
    QCOMPARE(log.take(), (QStringList{timeFirst("Start", "GetAllConnectedRecords", 253),
                                      "=======> <now>: " + path +
                                          ": GetAllConnectedRecords: 263: Calling "
                                          "KORA_Statistics_GetAllConnRecord()",
                                      "<======= <now>: " + path +
                                          ": GetAllConnectedRecords: 269: Finished "
                                          "KORA_Statistics_GetAllConnRecord(), retVal=-12",
                                      timeFirst("Exit", "GetAllConnectedRecords", 282)}));
}

void tst_RecordStore::removesOneRecordInTheSdkOnly()
{
    Host::instance().records.fill(plainRecord(), 6);
    m_logic->GetAllConnectedRecords();
    Host::instance().calls.clear();
    QVERIFY(m_logic->DeleteRecord(5));
    QCOMPARE(Host::instance().calls, QStringList{"RemoveRecord(5)"});
    QVERIFY(m_logic->m_records.contains(5));
}

void tst_RecordStore::reportsAFailedRemoval()
{
    Host::instance().removeStatus = [](int) { return 1; };
    QVERIFY(!m_logic->DeleteRecord(-4));
    QCOMPARE(Host::instance().calls, QStringList{"RemoveRecord(-4)"});
}

void tst_RecordStore::removesTheFirstRecordUntilAllAreGone()
{
    Host::instance().records.fill(plainRecord(), 3);
    m_logic->GetAllConnectedRecords();
    Host::instance().calls.clear();
    QVERIFY(m_logic->DeleteAll());
    QCOMPARE(Host::instance().calls,
             (QStringList{"RemoveRecord(0)", "RemoveRecord(0)", "RemoveRecord(0)"}));
    QCOMPARE(m_logic->m_records.size(), 3);
}

void tst_RecordStore::removesAllDespiteFailures()
{
    Host::instance().records.fill(plainRecord(), 3);
    m_logic->GetAllConnectedRecords();
    int call = 0;
    Host::instance().removeStatus = [&call](int) { return ++call == 2 ? 0 : 9; };
    QVERIFY(m_logic->DeleteAll());
    QCOMPARE(call, 3);
    Host::instance().removeStatus = [&call](int) { return ++call; };
    QVERIFY(!m_logic->DeleteAll());
    QCOMPARE(call, 6);
}

void tst_RecordStore::removesNothingFromAnEmptyMap()
{
    QVERIFY(!m_logic->DeleteAll());
    QVERIFY(Host::instance().calls.isEmpty());
}

void tst_RecordStore::logsRemovals()
{
    const auto finished = [](const char *function, int line, int status) {
        return QStringLiteral("<======= <now>: %1: %2: %3: "
                              "FinishedKORA_Statistics_ConnRecord_RemoveRecord (), retVal=%4")
            .arg(path, function)
            .arg(line)
            .arg(status);
    };
    const auto calling = [](const char *function, int line) {
        return QStringLiteral("=======> <now>: %1: %2: %3: "
                              "Calling KORA_Statistics_ConnRecord_RemoveRecord ()")
            .arg(path, function)
            .arg(line);
    };
    Host::instance().records.fill(plainRecord(), 2);
    m_logic->GetAllConnectedRecords();
    Host::instance().removeStatus = [](int) { return 4; };

    LogCapture log;
    m_logic->DeleteRecord(1);
    QCOMPARE(
        log.take(),
        (QStringList{timeFirst("Enter", "DeleteRecord", 370),
                     timeFirst("Start", "DeleteRecord", 372), calling("DeleteRecord", 377),
                     finished("DeleteRecord", 383, 4), timeFirst("End", "DeleteRecord", 390)}));
    m_logic->DeleteAll();
    QCOMPARE(log.take(),
             (QStringList{timeFirst("Start", "DeleteAll", 410), calling("DeleteAll", 415),
                          finished("DeleteAll", 423, 4), finished("DeleteAll", 423, 4),
                          timeFirst("End", "DeleteAll", 431)}));
}

QTEST_MAIN(tst_RecordStore)
#include "tst_recordstore.moc"
