// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "RecordStoreTest.h"
#include "ScriptedHost.h"

#include <QTest>

/// How the store reads a record of the SDK.
class tst_RecordConversion : public RecordStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void convertsARecord();
    void convertsTimes_data();
    void convertsTimes();
    void convertsVolumes_data();
    void convertsVolumes();
    void convertsConnectedTimes_data();
    void convertsConnectedTimes();
    void readsNoFieldPastItsEnd();
    void takesEightBitTextsAsLatin1();
    void keepsEqualTextsOnce();
    void takesAByteOrderMarkForNoText();
    void logsAConversion();
    void reportsAMissingRecord();
};

void tst_RecordConversion::convertsARecord()
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

void tst_RecordConversion::convertsTimes_data()
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

void tst_RecordConversion::convertsTimes()
{
    QFETCH(QByteArray, seconds);
    const auto record = scripted::record(QString(), seconds, seconds, "0", "0", "0");
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strStartTime, "text");
    QTEST(m_logic->m_records.value(0)->m_strEndTime, "text");
}

void tst_RecordConversion::convertsVolumes_data()
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

void tst_RecordConversion::convertsVolumes()
{
    QFETCH(QByteArray, bytes);
    const auto record = scripted::record(QString(), "0", "0", "0", bytes, bytes);
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strUploaded, "text");
    QTEST(m_logic->m_records.value(0)->m_strDownloaded, "text");
}

void tst_RecordConversion::convertsConnectedTimes_data()
{
    QTest::addColumn<QByteArray>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QByteArray("0") << "00:00:00";
    QTest::newRow("not a number") << QByteArray("long") << "00:00:00";
    QTest::newRow("over a day") << QByteArray("90061") << "25:01:01";
    QTest::newRow("negative keeps its sign") << QByteArray("-5") << "00:00:0-5";
    QTest::newRow("past 32 bits") << QByteArray("4294967296") << "00:00:00";
}

void tst_RecordConversion::convertsConnectedTimes()
{
    QFETCH(QByteArray, seconds);
    const auto record = scripted::record(QString(), "0", "0", seconds, "0", "0");
    m_logic->populateSDKtoUIStructure(0, &record);
    QTEST(m_logic->m_records.value(0)->m_strConnectedTime, "text");
}

void tst_RecordConversion::readsNoFieldPastItsEnd()
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

void tst_RecordConversion::takesEightBitTextsAsLatin1()
{
    const auto record =
        scripted::record(QStringLiteral("caf\u00e9 \u4e2d"), "0", "0", "0", "0", "0", "caf\xe9");
    m_logic->populateSDKtoUIStructure(0, &record);
    QCOMPARE(m_logic->m_records.value(0)->m_strProfileName, QStringLiteral("caf\u00e9 \u4e2d"));
    QCOMPARE(m_logic->m_records.value(0)->m_strExtraText1, QStringLiteral("caf\u00e9"));
}

void tst_RecordConversion::keepsEqualTextsOnce()
{
    for (int id : {0, 1, 2}) {
        const auto record = plainRecord(id == 1 ? "other.example" : "internet.example");
        m_logic->populateSDKtoUIStructure(id, &record);
    }
    const ConnectionRecord &first = *m_logic->m_records.value(0);
    const ConnectionRecord &last = *m_logic->m_records.value(2);
    QCOMPARE(m_logic->m_records.value(1)->m_strProfileName, QStringLiteral("other.example"));
    QCOMPARE(last.m_strProfileName, first.m_strProfileName);
    QCOMPARE(last.m_strProfileName.constData(), first.m_strProfileName.constData());
    QCOMPARE(last.m_strExtraText1.constData(), first.m_strExtraText1.constData());
    QCOMPARE(last.m_strExtraText2, QStringLiteral("ppp0"));
}

void tst_RecordConversion::takesAByteOrderMarkForNoText()
{
    const QString mark(QChar(0xfeff));
    const QStringList names = {mark + mark + "x", mark + "x", "x", mark + "x"};
    for (int id = 0; id < names.size(); ++id) {
        const auto record = plainRecord(names.at(id));
        m_logic->populateSDKtoUIStructure(id, &record);
        QCOMPARE(m_logic->m_records.value(id)->m_strProfileName,
                 QString::fromUtf16(record.szProfileName));
    }
}

void tst_RecordConversion::logsAConversion()
{
    const auto record = plainRecord();
    LogCapture log;
    m_logic->populateSDKtoUIStructure(0, &record);
    QCOMPARE(log.takeAbout(QStringLiteral("populateSDKtoUIStructure")),
             (QStringList{timeFirst("Enter", "populateSDKtoUIStructure", 302),
                          timeFirst("Exit", "populateSDKtoUIStructure", 352)}));
}

void tst_RecordConversion::reportsAMissingRecord()
{
    LogCapture log;
    m_logic->populateSDKtoUIStructure(3, nullptr);
    QVERIFY(m_logic->m_records.isEmpty());
    QCOMPARE(log.take(), (QStringList{timeFirst("Enter", "populateSDKtoUIStructure", 302),
                                      timeFirst("Arg is NULL", "populateSDKtoUIStructure", 304)}));
}

QTEST_MAIN(tst_RecordConversion)
#include "tst_recordconversion.moc"
