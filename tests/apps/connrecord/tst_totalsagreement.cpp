// SPDX-License-Identifier: MIT
#include "YearsOfHistory.h"

#include <QTest>

/// The program's sums against those that a query written by hand makes of the same
/// store, with the database's own calendar.
class TotalsAgreementTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithAQuery_data();
    void agreesWithAQuery();
    void coversWhatIsSpecial();
};

namespace
{

constexpr char sums[] = "count(*), sum(connected_seconds), sum(uploaded_bytes),"
                        " sum(downloaded_bytes) FROM connection";
constexpr char month[] = "strftime('%Y-%m', start_utc, 'unixepoch', 'localtime')";
constexpr char day[] = "date(start_utc, 'unixepoch', 'localtime')";

struct Grouping {
    const char *name;
    QStringList options;
    QString profile;
    QString month;
};

const Grouping groupings[] = {
    {"all", {}, "''", "''"},
    {"by profile", {"--by", "profile"}, "profile", "''"},
    {"by month", {"--by", "month"}, "''", month},
    {"by profile and month", {"--by", "profile,month"}, "profile", month},
};

struct Days {
    const char *name;
    QStringList options;
    QString condition;
};

void addRows(const QByteArray &zone, int firstYear)
{
    const QString second = QString::number(firstYear + 1);
    const Days spans[] = {
        {"always", {}, "1"},
        {"a year",
         {"--from", second + "-01-01", "--to", second + "-12-31"},
         QString("%1 BETWEEN '%2-01-01' AND '%2-12-31'").arg(day, second)},
        {"one day",
         {"--from", second + "-10-31", "--to", second + "-10-31"},
         QString("%1 = '%2-10-31'").arg(day, second)},
    };
    for (const Grouping &grouping : groupings) {
        for (const Days &days : spans)
            QTest::addRow("%s, %s, %s", grouping.name, days.name, zone.constData())
                << zone << firstYear << grouping.options + days.options
                << QString("SELECT %1, %2, %3 WHERE %4 GROUP BY 1, 2 ORDER BY 1, 2")
                       .arg(grouping.profile, grouping.month, sums, days.condition);
    }
}

} // namespace

void TotalsAgreementTest::agreesWithAQuery_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("query");
    addRows("Europe/Berlin", 2023);
    // Here, clocks were set back a minute after a month had begun.
    addRows("America/St_Johns", 2008);
    addRows("Pacific/Kiritimati", 2023); // 14 hours ahead of UTC
    addRows("Etc/GMT+12", 2023);         // 12 hours behind it
}

void TotalsAgreementTest::agreesWithAQuery()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, firstYear);
    QFETCH(QStringList, options);
    QFETCH(QString, query);
    const YearsOfHistory history(zone.constData(), firstYear);
    const QStringList queried = history.rowsOf(query.toStdString());
    QVERIFY(!queried.isEmpty());
    QCOMPARE(YearsOfHistory::totalsTold(options), queried);
}

/// Without these in it, an agreement would say little.
void TotalsAgreementTest::coversWhatIsSpecial()
{
    const YearsOfHistory history("Europe/Berlin", 2023);
    const auto count = [&history](const std::string &condition) {
        return history.rowsOf("SELECT count(*) FROM connection WHERE " + condition).first().toInt();
    };
    const std::string local = "strftime('%Y-%m-%d %H', start_utc, 'unixepoch', 'localtime') ";
    QVERIFY(count("1") > 3000);
    QVERIFY(count(local + "LIKE '2024-02-29%'") > 0);
    QVERIFY(count(local + "LIKE '2024-03-31%'") > 0); // clocks go forward
    QVERIFY(count(local + "LIKE '2024-10-27%'") > 0); // and back
    QVERIFY(count("uploaded_bytes >= 9007199254740992") > 10);
    QVERIFY(count("profile = ''") > 100);
    QVERIFY(count("profile = 'IDS_COMBO_ALLAPN'") > 100);
    QVERIFY(count("profile = 'internet'") > 100);
    QVERIFY(count("profile = 'INTERNET'") > 100);
    QVERIFY(count("end_utc - start_utc > 86400") > 10);
}

QTEST_GUILESS_MAIN(TotalsAgreementTest)

#include "tst_totalsagreement.moc"
