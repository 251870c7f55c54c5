// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "NetInfoRecordLogic.h"
#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

namespace
{
const QString path = QStringLiteral("../../src/NetInfoRecordUIPlugin/NetInfoRecordLogic");

QString timeFirst(const char *word, const char *function, int line)
{
    return QStringLiteral("%1: <now>: %2: %3 %4").arg(word, path, function).arg(line);
}

_KORA_ST_CONNRECORD plainRecord(const QString &profile = QStringLiteral("internet.example"))
{
    return scripted::record(profile, "1267795800", "1267799400", "3600", "1536", "1048576",
                            "normal", "ppp0");
}
} // namespace

class tst_RecordStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isOnePerProcess();
    void startsEmpty();
    void logsItsLife();

    void convertsARecord();
    void convertsTimes_data();
    void convertsTimes();
    void convertsVolumes_data();
    void convertsVolumes();
    void convertsConnectedTimes_data();
    void convertsConnectedTimes();
    void readsNoFieldPastItsEnd();
    void takesEightBitTextsAsLatin1();
    void logsAConversion();
    void reportsAMissingRecord();

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

    void fetchesTheLastRecord();
    void keepsTheLastRecordWhenTheSdkFails();
    void fetchesAnEmptyLastRecord();
    void logsTheLastRecord();

private:
    NetInfoRecordLogic *m_logic = nullptr;
};

void tst_RecordStore::init()
{
    Host::instance().reset();
    m_logic = NetInfoRecordLogic::Instance();
}

void tst_RecordStore::cleanup()
{
    if (m_logic)
        qDeleteAll(m_logic->m_records);
    NetInfoRecordLogic::Destroy();
    QCOMPARE(Host::instance().openArrays, 0);
}

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

void tst_RecordStore::convertsARecord()
{
    const auto record = plainRecord();
    m_logic->populateSDKtoUIStructure(7, &record);
    QCOMPARE(m_logic->m_records.keys(), QList<int>{7});
    const ConnectionRecord &converted = *m_logic->m_records.value(7);
    QCOMPARE(converted.m_nRecordId, 7);
    QCOMPARE(converted.m_strProfileName, QStringLiteral("internet.example"));
    QCOMPARE(converted.m_strStartTime, QStringLiteral("20100305143000")); // in Berlin
    QCOMPARE(converted.m_strEndTime, QStringLiteral("20100305153000"));
    QVERIFY(converted.m_strReserved.isEmpty() && !converted.m_strReserved.isNull());
    QCOMPARE(converted.m_strUploaded, QStringLiteral("1.50 KB"));
    QCOMPARE(converted.m_strDownloaded, QStringLiteral("1.00 MB"));
    QCOMPARE(converted.m_strExtraText1, QStringLiteral("normal"));
    QCOMPARE(converted.m_strExtraText2, QStringLiteral("ppp0"));
    QCOMPARE(converted.m_strConnectedTime, QStringLiteral("01:00:00"));
}

void tst_RecordStore::convertsTimes_data()
{
    QTest::addColumn<QByteArray>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("the epoch") << QByteArray("0") << "19700101010000";
    QTest::newRow("empty counts as 0") << QByteArray("") << "19700101010000";
    QTest::newRow("not a number counts as 0") << QByteArray("soon") << "19700101010000";
    QTest::newRow("half a number counts as 0") << QByteArray("12x") << "19700101010000";
    QTest::newRow("a fraction counts as 0") << QByteArray("12.5") << "19700101010000";
    QTest::newRow("the last signed second") << QByteArray("2147483647") << "20380119041407";
    QTest::newRow("past 32 bits counts as 0") << QByteArray("2147483648") << "19700101010000";
    QTest::newRow("negative wraps") << QByteArray("-1") << "21060207072815";
    QTest::newRow("most negative wraps") << QByteArray("-2147483648") << "20380119041408";
    QTest::newRow("in summer time") << QByteArray("1720000000") << "20240703114640";
    QTest::newRow("before the clocks go back") << QByteArray("1729987200") << "20241027020000";
    QTest::newRow("after the clocks went back") << QByteArray("1729990800") << "20241027020000";
    QTest::newRow("leap day") << QByteArray("1709164800") << "20240229010000";
}

void tst_RecordStore::convertsTimes()
{
    QFETCH(QByteArray, seconds);
    const auto record = scripted::record(QString(), seconds, seconds, "0", "0", "0");
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strStartTime, "text");
    QTEST(m_logic->m_records.value(0)->m_strEndTime, "text");
}

void tst_RecordStore::convertsVolumes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QByteArray("0") << "0.00 KB";
    QTest::newRow("empty counts as 0") << QByteArray("") << "0.00 KB";
    QTest::newRow("not a number counts as 0") << QByteArray("much") << "0.00 KB";
    QTest::newRow("a kilobyte") << QByteArray("1024") << "1.00 KB";
    QTest::newRow("1.5 KB") << QByteArray("1536") << "1.50 KB";
    QTest::newRow("a megabyte") << QByteArray("1048576") << "1.00 MB";
    QTest::newRow("a gigabyte") << QByteArray("1073741824") << "1.00 GB";
    QTest::newRow("2^53 bytes") << QByteArray("9007199254740992") << "8388608.00 GB";
    QTest::newRow("with an exponent") << QByteArray("1e6") << "976.56 KB";
    QTest::newRow("negative") << QByteArray("-1024") << "-1.00 KB";
    QTest::newRow("not a number by name") << QByteArray("nan") << "nan KB";
}

void tst_RecordStore::convertsVolumes()
{
    QFETCH(QByteArray, bytes);
    const auto record = scripted::record(QString(), "0", "0", "0", bytes, bytes);
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strUploaded, "text");
    QTEST(m_logic->m_records.value(0)->m_strDownloaded, "text");
}

void tst_RecordStore::convertsConnectedTimes_data()
{
    QTest::addColumn<QByteArray>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QByteArray("0") << "00:00:00";
    QTest::newRow("not a number") << QByteArray("long") << "00:00:00";
    QTest::newRow("over a day") << QByteArray("90061") << "25:01:01";
    QTest::newRow("negative keeps its sign") << QByteArray("-5") << "00:00:0-5";
    QTest::newRow("past 32 bits") << QByteArray("4294967296") << "00:00:00";
}

void tst_RecordStore::convertsConnectedTimes()
{
    QFETCH(QByteArray, seconds);
    const auto record = scripted::record(QString(), "0", "0", seconds, "0", "0");
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strConnectedTime, "text");
}

void tst_RecordStore::readsNoFieldPastItsEnd()
{
    const auto record =
        scripted::record(QString(200, QLatin1Char('n')), QByteArray(40, '1'), QByteArray(40, '2'),
                         QByteArray(40, '3'), QByteArray(64, '0'), QByteArray(64, '0'),
                         QByteArray(40, 'x'), QByteArray(40, 'y'));
    m_logic->populateSDKtoUIStructure(0, &record);
    const ConnectionRecord &converted = *m_logic->m_records.value(0);
    QCOMPARE(converted.m_strProfileName, QString(128, QLatin1Char('n')));
    QCOMPARE(converted.m_strExtraText1, QString(32, QLatin1Char('x')));
    QCOMPARE(converted.m_strExtraText2, QString(32, QLatin1Char('y')));
    QCOMPARE(converted.m_strStartTime, QStringLiteral("19700101010000"));
    QCOMPARE(converted.m_strUploaded, QStringLiteral("0.00 KB"));
}

void tst_RecordStore::takesEightBitTextsAsLatin1()
{
    const auto record =
        scripted::record(QStringLiteral("caf\u00e9 \u4e2d"), "0", "0", "0", "0", "0", "caf\xe9");
    m_logic->populateSDKtoUIStructure(0, &record);
    QCOMPARE(m_logic->m_records.value(0)->m_strProfileName, QStringLiteral("caf\u00e9 \u4e2d"));
    QCOMPARE(m_logic->m_records.value(0)->m_strExtraText1, QStringLiteral("caf\u00e9"));
}

void tst_RecordStore::logsAConversion()
{
    const auto record = plainRecord();
    LogCapture log;
    m_logic->populateSDKtoUIStructure(0, &record);
    QCOMPARE(log.takeAbout(QStringLiteral("populateSDKtoUIStructure")),
             (QStringList{timeFirst("Enter", "populateSDKtoUIStructure", 302),
                          timeFirst("Exit", "populateSDKtoUIStructure", 352)}));
}

void tst_RecordStore::reportsAMissingRecord()
{
    LogCapture log;
    m_logic->populateSDKtoUIStructure(3, nullptr);
    QVERIFY(m_logic->m_records.isEmpty());
    QCOMPARE(log.take(), (QStringList{timeFirst("Enter", "populateSDKtoUIStructure", 302),
                                      timeFirst("Arg is NULL", "populateSDKtoUIStructure", 304)}));
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

void tst_RecordStore::fetchesTheLastRecord()
{
    Host::instance().lastRecord = plainRecord();
    QVERIFY(m_logic->GetLastConnectedRecord());
    const ConnectionRecord &last = m_logic->m_lastRecord;
    QCOMPARE(last.m_nRecordId, -1);
    QCOMPARE(last.m_strProfileName, QStringLiteral("internet.example"));
    QCOMPARE(last.m_strStartTime, QStringLiteral("20100305143000"));
    QCOMPARE(last.m_strEndTime, QStringLiteral("20100305153000"));
    QCOMPARE(last.m_strReserved, QString(""));
    QCOMPARE(last.m_strUploaded, QStringLiteral("1.50 KB"));
    QCOMPARE(last.m_strDownloaded, QStringLiteral("1.00 MB"));
    QCOMPARE(last.m_strExtraText1, QStringLiteral("normal"));
    QCOMPARE(last.m_strExtraText2, QStringLiteral("ppp0"));
    QCOMPARE(last.m_strConnectedTime, QStringLiteral("01:00:00"));
    QVERIFY(m_logic->m_records.isEmpty());
    QCOMPARE(Host::instance().calls, QStringList{"GetLastConnRecord()"});
}

void tst_RecordStore::keepsTheLastRecordWhenTheSdkFails()
{
    Host::instance().lastRecord = plainRecord();
    QVERIFY(m_logic->GetLastConnectedRecord());
    Host::instance().lastRecord = plainRecord(QStringLiteral("other"));
    Host::instance().getLastStatus = 2;
    QVERIFY(!m_logic->GetLastConnectedRecord());
    QCOMPARE(m_logic->m_lastRecord.m_strProfileName, QStringLiteral("internet.example"));
}

void tst_RecordStore::fetchesAnEmptyLastRecord()
{
    QVERIFY(m_logic->GetLastConnectedRecord());
    const ConnectionRecord &last = m_logic->m_lastRecord;
    QVERIFY(last.m_strProfileName.isEmpty());
    QCOMPARE(last.m_strStartTime, QStringLiteral("19700101010000"));
    QCOMPARE(last.m_strEndTime, QStringLiteral("19700101010000"));
    QCOMPARE(last.m_strUploaded, QStringLiteral("0.00 KB"));
    QCOMPARE(last.m_strDownloaded, QStringLiteral("0.00 KB"));
    QCOMPARE(last.m_strConnectedTime, QStringLiteral("00:00:00"));
    QVERIFY(last.m_strExtraText1.isEmpty());
    QVERIFY(last.m_strExtraText2.isEmpty());
}

void tst_RecordStore::logsTheLastRecord()
{
    Host::instance().getLastStatus = 5;
    LogCapture log;
    m_logic->GetLastConnectedRecord();
    QCOMPARE(log.take(), (QStringList{timeFirst("Start", "GetLastConnectedRecord", 169),
                                      "=======> <now>: " + path +
                                          ": GetLastConnectedRecord: 177: Calling "
                                          "KORA_Statistics_GetLastConnRecord()",
                                      "<======= <now>: " + path +
                                          ": GetLastConnectedRecord: 182: Finished "
                                          "KORA_Statistics_GetLastConnRecord(), retVal=5",
                                      timeFirst("End", "GetLastConnectedRecord", 233)}));
}

QTEST_MAIN(tst_RecordStore)
#include "tst_recordstore.moc"
