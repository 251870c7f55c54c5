// SPDX-License-Identifier: MIT
#include "formats/JournalEntry.h"

#include <QTest>

using namespace formats;

class JournalEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void takesTimesThatALogCanShow_data();
    void takesTimesThatALogCanShow();
    void isEmptyIfItIsBroken();
};

void JournalEntryTest::takesTimesThatALogCanShow_data()
{
    QTest::addColumn<QByteArray>("microseconds");
    QTest::addColumn<QString>("time");

    QTest::newRow("the first") << QByteArray("0") << "1970-01-01T00:00:00Z";
    QTest::newRow("the last") << QByteArray("253402300799999999") << "9999-12-31T23:59:59Z";
    QTest::newRow("a later one") << QByteArray("253402300800000000") << "";
    QTest::newRow("an earlier one") << QByteArray("-1") << "";
    QTest::newRow("more than a number holds") << QByteArray("9223372036854775808") << "";
    QTest::newRow("no number") << QByteArray("now") << "";
    QTest::newRow("none") << QByteArray() << "";
}

void JournalEntryTest::takesTimesThatALogCanShow()
{
    QFETCH(QByteArray, microseconds);
    JournalEntry entry;
    entry.set("__REALTIME_TIMESTAMP", microseconds.toStdString());
    const auto time = entry.line().time;
    QTEST(time ? usage::utcText(usage::utcSpan(*time).earliest) : QString(), "time");
}

void JournalEntryTest::isEmptyIfItIsBroken()
{
    QVERIFY(!journalEntryFromJson("{\"MESSAGE\":\"Exit.\"}").isEmpty());
    QVERIFY(journalEntryFromJson("{\"MESSAGE\":\"Exit.\"").isEmpty());
}

QTEST_GUILESS_MAIN(JournalEntryTest)

#include "tst_journalentry.moc"
