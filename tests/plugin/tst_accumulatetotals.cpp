// SPDX-License-Identifier: MIT
#include "AccumulateTotals.h"
#include "ScriptedHost.h"
#include "SdkText.h"
#include "TimeText.h"

#include <QDate>
#include <QTest>

namespace
{

/// A connection of this profile that began at this local (Berlin) time.
_KORA_ST_CONNRECORD connection(const QString &profile, const QDateTime &start, qint64 uploaded,
                               qint64 downloaded, int seconds)
{
    return scripted::record(profile, QByteArray::number(start.toSecsSinceEpoch()),
                            QByteArray::number(start.toSecsSinceEpoch() + seconds),
                            QByteArray::number(seconds), QByteArray::number(uploaded),
                            QByteArray::number(downloaded));
}

/// As the record store adds one that it has converted.
void add(AccumulateTotals &totals, const _KORA_ST_CONNRECORD &record)
{
    totals.add(record, SdkText::bounded(record.szProfileName),
               TimeText::of(SdkText::seconds(record.szStartTime)));
}

constexpr qint64 mega = 1048576;
const QDate today(2025, 3, 20);

QVector<AccumulateDialogRecord> rowsOf(const QVector<_KORA_ST_CONNRECORD> &records)
{
    AccumulateTotals totals;
    for (const _KORA_ST_CONNRECORD &record : records)
        add(totals, record);
    return totals.rows(today);
}

QStringList stamps(const QVector<AccumulateDialogRecord> &rows)
{
    QStringList result;
    for (const AccumulateDialogRecord &row : rows)
        result.append(row.profileName + QLatin1Char('@') + row.periodStamp);
    return result;
}

} // namespace

class tst_AccumulateTotals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheAllProfilesRowWithoutRecords();
    void sumsPerProfileAndMonth();
    void ordersProfilesByName();
    void countsAConnectionInTheMonthOfItsStart_data();
    void countsAConnectionInTheMonthOfItsStart();
    void formatsAmounts_data();
    void formatsAmounts();
    void sumsBeforeItRounds();
    void neverOverflows();
    void forgetsWhatIsRemoved();
    void removesNothingTwice();
};

void tst_AccumulateTotals::givesTheAllProfilesRowWithoutRecords()
{
    const auto rows = rowsOf({});
    QCOMPARE(stamps(rows), QStringList{"IDS_COMBO_ALLAPN@20250301000000"});
    QCOMPARE(rows[0].uploadedThisMonth, QStringLiteral("0.00"));
    QCOMPARE(rows[0].secondsThisMonth, QStringLiteral("0"));
}

void tst_AccumulateTotals::sumsPerProfileAndMonth()
{
    const QVector<_KORA_ST_CONNRECORD> records = {
        connection("a", QDateTime(QDate(2025, 3, 1), QTime(0, 0)), mega, 2 * mega, 10),
        connection("b", QDateTime(QDate(2025, 3, 19), QTime(8, 0)), 3 * mega, 4 * mega, 20),
        connection("a", QDateTime(QDate(2025, 2, 28), QTime(23, 59)), 5 * mega, 6 * mega, 30),
        connection("a", QDateTime(QDate(2025, 1, 31), QTime(12, 0)), 7 * mega, 8 * mega, 40),
        connection("a", QDateTime(QDate(2024, 3, 5), QTime(12, 0)), 9 * mega, 9 * mega, 90000),
    };
    const auto rows = rowsOf(records);
    QCOMPARE(stamps(rows),
             (QStringList{"IDS_COMBO_ALLAPN@20250301000000", "a@20240301000000", "a@20250101000000",
                          "a@20250201000000", "a@20250301000000", "b@20250301000000"}));
    QCOMPARE(rows[0].uploadedThisMonth, QStringLiteral("4.00"));
    QCOMPARE(rows[0].downloadedThisMonth, QStringLiteral("6.00"));
    QCOMPARE(rows[0].secondsThisMonth, QStringLiteral("30"));
    QCOMPARE(rows[0].uploadedLastMonth, QStringLiteral("5.00"));
    QCOMPARE(rows[0].downloadedLastMonth, QStringLiteral("6.00"));
    QCOMPARE(rows[0].secondsLastMonth, QStringLiteral("30"));
    QCOMPARE(rows[0].uploadedMonthBeforeLast, QStringLiteral("7.00"));
    QCOMPARE(rows[0].downloadedMonthBeforeLast, QStringLiteral("8.00"));
    QCOMPARE(rows[0].secondsMonthBeforeLast, QStringLiteral("40"));
    QCOMPARE(rows[4].uploadedThisMonth, QStringLiteral("1.00"));
    QCOMPARE(rows[3].downloadedLastMonth, QStringLiteral("6.00"));
    QCOMPARE(rows[5].downloadedThisMonth, QStringLiteral("4.00"));
    QCOMPARE(rows[5].downloadedLastMonth, QStringLiteral("0.00"));
}

void tst_AccumulateTotals::ordersProfilesByName()
{
    QVector<_KORA_ST_CONNRECORD> records;
    for (const char *name : {"b", "", "IDS_COMBO_ALLAPN", "B", "a"})
        records.append(connection(name, QDateTime(today, QTime(1, 0)), 0, 0, 1));
    QStringList names;
    for (const auto &row : rowsOf(records))
        names.append(row.profileName);
    QCOMPARE(names, (QStringList{"IDS_COMBO_ALLAPN", "", "B", "IDS_COMBO_ALLAPN", "a", "b"}));
}

void tst_AccumulateTotals::countsAConnectionInTheMonthOfItsStart_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<QString>("stamp");
    QTest::newRow("last second of February") << qint64(1740783599) << "20250201000000";
    QTest::newRow("first second of March") << qint64(1740783600) << "20250301000000";
    QTest::newRow("leap day") << qint64(1709247599) << "20240201000000";
    QTest::newRow("as the clocks go forward") << qint64(1743296400) << "20250301000000";
    QTest::newRow("first second of April, in summer time")
        << qint64(1743458400) << "20250401000000";
    QTest::newRow("last second of October, in winter time")
        << qint64(1761951599) << "20251001000000";
    QTest::newRow("New Year's Eve") << qint64(1735685999) << "20241201000000";
}

void tst_AccumulateTotals::countsAConnectionInTheMonthOfItsStart()
{
    QFETCH(qint64, start);
    const auto record = scripted::record("a", QByteArray::number(start),
                                         QByteArray::number(start + 999999), "999999", "1", "1");
    QTEST(rowsOf({record}).at(1).periodStamp, "stamp");
}

void tst_AccumulateTotals::formatsAmounts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QByteArray("0") << "0.00";
    QTest::newRow("a byte") << QByteArray("1") << "0.00";
    QTest::newRow("just over half a hundredth") << QByteArray("5243") << "0.01";
    QTest::newRow("just under half a hundredth") << QByteArray("5242") << "0.00";
    QTest::newRow("an eighth, a tie to even") << QByteArray("131072") << "0.12";
    QTest::newRow("three eighths, a tie to even") << QByteArray("393216") << "0.38";
    QTest::newRow("1.5 MB") << QByteArray("1572864") << "1.50";
    QTest::newRow("2^53 bytes") << QByteArray("9007199254740992") << "8589934592.00";
    QTest::newRow("2^53 + 2^20 bytes") << QByteArray("9007199255789568") << "8589934593.00";
    QTest::newRow("2^63 - 1 bytes") << QByteArray("9223372036854775807") << "8796093022208.00";
    QTest::newRow("2^64 - 1 bytes") << QByteArray("18446744073709551615") << "17592186044416.00";
    QTest::newRow("negative") << QByteArray("-1048576") << "-1.00";
    QTest::newRow("with an exponent") << QByteArray("1.048576e6") << "1.00";
    QTest::newRow("no number") << QByteArray("much") << "0.00";
    QTest::newRow("not a number by name") << QByteArray("nan") << "0.00";
    QTest::newRow("past every counter") << QByteArray("1e300") << "0.00";
}

void tst_AccumulateTotals::formatsAmounts()
{
    QFETCH(QByteArray, bytes);
    const auto record =
        scripted::record("a", QByteArray::number(QDateTime(today, QTime(1, 0)).toSecsSinceEpoch()),
                         "0", "0", bytes, bytes);
    const auto row = rowsOf({record}).first();
    QTEST(row.uploadedThisMonth, "text");
    QTEST(row.downloadedThisMonth, "text");
}

void tst_AccumulateTotals::sumsBeforeItRounds()
{
    AccumulateTotals totals;
    for (int i = 0; i < 1000; ++i)
        add(totals, connection("a", QDateTime(today, QTime(1, 0)), 1048, 5000, 0));
    QCOMPARE(totals.rows(today).first().uploadedThisMonth, QStringLiteral("1.00"));
    QCOMPARE(totals.rows(today).first().downloadedThisMonth, QStringLiteral("4.77"));
}

void tst_AccumulateTotals::neverOverflows()
{
    AccumulateTotals totals;
    const auto most = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 1000; ++i)
        add(totals, connection("a", QDateTime(today, QTime(1, 0)), most, most, 2147483647 / 2));
    // 1000 times 2^63 - 1 bytes
    QCOMPARE(totals.rows(today).first().uploadedThisMonth, QStringLiteral("8796093022208000.00"));
    QCOMPARE(totals.rows(today).first().secondsThisMonth, QStringLiteral("1073741823000"));
}

void tst_AccumulateTotals::forgetsWhatIsRemoved()
{
    AccumulateTotals totals;
    const QDateTime thisMonth(today, QTime(1, 0));
    const QDateTime lastMonth(today.addMonths(-1), QTime(1, 0));
    add(totals, connection("a", thisMonth, mega, 2 * mega, 10));
    add(totals, connection("b", thisMonth, 3 * mega, 4 * mega, 20));
    add(totals, connection("a", lastMonth, 5 * mega, 6 * mega, 30));
    totals.remove(2);
    QCOMPARE(stamps(totals.rows(today)), (QStringList{"IDS_COMBO_ALLAPN@20250301000000",
                                                      "a@20250301000000", "b@20250301000000"}));
    QCOMPARE(totals.rows(today).first().uploadedLastMonth, QStringLiteral("0.00"));
    totals.remove(0);
    const AccumulateDialogRecord all = totals.rows(today).first();
    QCOMPARE(all.uploadedThisMonth, QStringLiteral("3.00"));
    QCOMPARE(all.downloadedThisMonth, QStringLiteral("4.00"));
    QCOMPARE(all.secondsThisMonth, QStringLiteral("20"));
    QCOMPARE(stamps(totals.rows(today)),
             (QStringList{"IDS_COMBO_ALLAPN@20250301000000", "b@20250301000000"}));
}

void tst_AccumulateTotals::removesNothingTwice()
{
    AccumulateTotals totals;
    add(totals, connection("a", QDateTime(today, QTime(1, 0)), mega, 0, 10));
    add(totals, connection("a", QDateTime(today, QTime(2, 0)), mega, 0, 10));
    for (int position : {-1, 0, 0, 2})
        totals.remove(position);
    QCOMPARE(totals.rows(today).first().uploadedThisMonth, QStringLiteral("1.00"));
}

QTEST_MAIN(tst_AccumulateTotals)
#include "tst_accumulatetotals.moc"
