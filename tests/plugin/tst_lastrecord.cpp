// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "RecordStoreTest.h"
#include "ScriptedHost.h"

#include <QTest>

using scripted::Host;

/// The record of the last connection, which the summary shows.
class tst_LastRecord : public RecordStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void fetchesTheLastRecord();
    void keepsTheLastRecordWhenTheSdkFails();
    void fetchesAnEmptyLastRecord();
    void logsTheLastRecord();
};

void tst_LastRecord::fetchesTheLastRecord()
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

void tst_LastRecord::keepsTheLastRecordWhenTheSdkFails()
{
    Host::instance().lastRecord = plainRecord();
    QVERIFY(m_logic->GetLastConnectedRecord());
    Host::instance().lastRecord = plainRecord(QStringLiteral("other"));
    Host::instance().getLastStatus = 2;
    QVERIFY(!m_logic->GetLastConnectedRecord());
    QCOMPARE(m_logic->m_lastRecord.m_strProfileName, QStringLiteral("internet.example"));
}

void tst_LastRecord::fetchesAnEmptyLastRecord()
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

void tst_LastRecord::logsTheLastRecord()
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

QTEST_MAIN(tst_LastRecord)
#include "tst_lastrecord.moc"
