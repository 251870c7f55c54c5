// SPDX-License-Identifier: MIT
#include "SampleHistory.h"
#include "history/Store.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <memory>

using namespace history;

/// The program's sums over a real store, each connection counted at its start.
class ConnrecordTotalsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void showsATable();
    void addsUpByWhatIsAsked_data();
    void addsUpByWhatIsAsked();
    void countsAConnectionOnTheDayOfItsStart_data();
    void countsAConnectionOnTheDayOfItsStart();
    void tellsTheSumOfNothing_data();
    void tellsTheSumOfNothing();
    void leavesOpenConnectionsOut();
    void refusesASumThatIsTooLarge();
    void refusesWhatIsNoRequest_data();
    void refusesWhatIsNoRequest();
    void leavesAFileAloneThatIsNoStore();

private:
    void store(const std::vector<Connection> &connections) const;
    ConnrecordRun totals(const QStringList &options) const
    {
        return connrecord(QStringList{"--store", m_store, "totals", "--by-start"} + options);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_store;
};

namespace
{

// All of it in Europe/Berlin, the zone of the tests.
constexpr std::int64_t may = 1714514400;          // 2024-05-01 00:00:00
constexpr std::int64_t june = 1717192800;         // 2024-06-01 00:00:00
constexpr std::int64_t secondOfJune = 1717279200; // 2024-06-02 00:00:00

std::vector<Connection> samples()
{
    return {sampleConnection("internet", may, 60, 1, 10),
            sampleConnection("Internet", june - 1, 100000, 2, 20),
            sampleConnection("internet", june, 60, 4, 40),
            sampleConnection("", secondOfJune, 60, 8, 80)};
}

/// The JSON without blanks and line feeds.
QString compact(const ConnrecordRun &run)
{
    return QString::fromUtf8(run.json().toJson(QJsonDocument::Compact));
}

QString group(const QString &names, int count, int seconds, int uploaded, int downloaded)
{
    return QString(R"({"connected_seconds":%1,"connections":%2,"downloaded_bytes":%3,)"
                   R"(%4"uploaded_bytes":%5})")
        .arg(seconds)
        .arg(count)
        .arg(downloaded)
        .arg(names)
        .arg(uploaded);
}

} // namespace

void ConnrecordTotalsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = m_folder->filePath("connections.db");
}

void ConnrecordTotalsTest::store(const std::vector<Connection> &connections) const
{
    auto opened = Store::openOrCreate(m_store.toStdString());
    QVERIFY(opened);
    QVERIFY(opened.value().addMissing(connections));
}

void ConnrecordTotalsTest::showsATable()
{
    store(samples());
    const ConnrecordRun result = totals({"--by", "profile,month"});
    QCOMPARE(totals({"--by", "month,profile"}).output, result.output);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.output,
             QByteArray("PROFILE   MONTH    CONNECTIONS  CONNECTED  UPLOADED  DOWNLOADED\n"
                        "\"\"        2024-06            1   00:01:00   0.01 KB     0.08 KB\n"
                        "Internet  2024-05            1   27:46:40   0.00 KB     0.02 KB\n"
                        "internet  2024-05            1   00:01:00   0.00 KB     0.01 KB\n"
                        "internet  2024-06            1   00:01:00   0.00 KB     0.04 KB\n"));
}

void ConnrecordTotalsTest::addsUpByWhatIsAsked_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("groups");

    QTest::newRow("all in one") << QStringList() << QStringList{group("", 4, 100180, 15, 150)};
    QTest::newRow("by profile") << QStringList{"--by", "profile"}
                                << QStringList{group(R"("profile":"",)", 1, 60, 8, 80),
                                               group(R"("profile":"Internet",)", 1, 100000, 2, 20),
                                               group(R"("profile":"internet",)", 2, 120, 5, 50)};
    QTest::newRow("by month") << QStringList{"--by", "month"}
                              << QStringList{group(R"("month":"2024-05",)", 2, 100060, 3, 30),
                                             group(R"("month":"2024-06",)", 2, 120, 12, 120)};
    QTest::newRow("by profile and month, of some days")
        << QStringList{"--by", "profile,month", "--from", "2024-05-31", "--to", "2024-06-01"}
        << QStringList{group(R"("month":"2024-05","profile":"Internet",)", 1, 100000, 2, 20),
                       group(R"("month":"2024-06","profile":"internet",)", 1, 60, 4, 40)};
}

void ConnrecordTotalsTest::addsUpByWhatIsAsked()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, groups);
    store(samples());
    const ConnrecordRun result = totals(options + QStringList{"--json"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(compact(result), "[" + groups.join(",") + "]");
}

void ConnrecordTotalsTest::countsAConnectionOnTheDayOfItsStart_data()
{
    QTest::addColumn<QStringList>("days");
    QTest::addColumn<int>("uploaded");

    QTest::newRow("from a day on, itself included") << QStringList{"--from", "2024-06-01"} << 12;
    QTest::newRow("from the day after") << QStringList{"--from", "2024-06-02"} << 8;
    QTest::newRow("up to a day, itself included") << QStringList{"--to", "2024-05-31"} << 3;
    QTest::newRow("one day") << QStringList{"--from", "2024-06-01", "--to", "2024-06-01"} << 4;
    QTest::newRow("days on which a connection lasts that started before")
        << QStringList{"--from", "2024-06-03"} << 0;
    QTest::newRow("days of other centuries")
        << QStringList{"--from", "0001-01-01", "--to", "9999-12-31"} << 15;
}

void ConnrecordTotalsTest::countsAConnectionOnTheDayOfItsStart()
{
    QFETCH(QStringList, days);
    QFETCH(int, uploaded);
    store(samples());
    const ConnrecordRun result = totals(days + QStringList{"--json"});
    QCOMPARE(result.exitCode, 0);
    const QByteArray expected = "\"uploaded_bytes\": " + QByteArray::number(uploaded) + '\n';
    QVERIFY2(result.output.contains(expected), result.output);
}

void ConnrecordTotalsTest::tellsTheSumOfNothing_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("in all") << QStringList()
                            << QByteArray("CONNECTIONS  CONNECTED  UPLOADED  DOWNLOADED\n"
                                          "          0   00:00:00   0.00 KB     0.00 KB\n");
    QTest::newRow("by profile") << QStringList{"--by", "profile"}
                                << QByteArray("PROFILE  CONNECTIONS  CONNECTED  UPLOADED  "
                                              "DOWNLOADED\n");
    QTest::newRow("by month as JSON")
        << QStringList{"--by", "month", "--json"} << QByteArray("[]\n");
}

void ConnrecordTotalsTest::tellsTheSumOfNothing()
{
    QFETCH(QStringList, options);
    const ConnrecordRun result = totals(options);
    QCOMPARE(result.exitCode, 0);
    QTEST(result.output, "output");
    QCOMPARE(result.error, QByteArray());
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void ConnrecordTotalsTest::leavesOpenConnectionsOut()
{
    store(samples());
    const QByteArray before = totals({"--by", "profile,month", "--json"}).output;
    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.profile = "internet";
    open.startUtc = june;
    open.uploadedBytes = 1000;
    open.updatedUtc = june + 60;
    open.connectedSeconds = 60;
    QVERIFY(Store::openOrCreate(m_store.toStdString()).value().begin(open));
    QCOMPARE(totals({"--by", "profile,month", "--json"}).output, before);
}

void ConnrecordTotalsTest::refusesASumThatIsTooLarge()
{
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    store({sampleConnection("a", may, 60, most, 0), sampleConnection("b", june, 60, 1, 0)});
    const ConnrecordRun refused = totals({});
    QCOMPARE(refused.exitCode, 1);
    QCOMPARE(refused.output, QByteArray());
    QVERIFY2(refused.error.contains("bytes sent"), refused.error);
    QVERIFY2(refused.error.contains(m_store.toUtf8()), refused.error);
    const ConnrecordRun apart = totals({"--by", "month", "--json"});
    QCOMPARE(apart.exitCode, 0);
    QVERIFY2(apart.output.contains("\"uploaded_bytes\": 9223372036854775807\n"), apart.output);
}

void ConnrecordTotalsTest::refusesWhatIsNoRequest_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("named");

    QTest::newRow("something else to tell apart")
        << QStringList{"--by", "week"} << 2 << QByteArray("week");
    QTest::newRow("twice the same")
        << QStringList{"--by", "month,month"} << 2 << QByteArray("--by");
    QTest::newRow("days and months") << QStringList{"--by", "month,day"} << 2 << QByteArray("--by");
    QTest::newRow("a comma too many") << QStringList{"--by", "month,"} << 2 << QByteArray("--by");
    QTest::newRow("nothing to tell apart") << QStringList{"--by", ""} << 2 << QByteArray("--by");
    QTest::newRow("an argument too many") << QStringList{"internet"} << 2 << QByteArray("internet");
    QTest::newRow("days in the wrong order")
        << QStringList{"--from", "2024-06-02", "--to", "2024-06-01"} << 1
        << QByteArray("2024-06-02");
    for (const char *const day : {"yesterday", "", "2024-02-30", "2023-02-29", "2024-6-1",
                                  "2024/06/01", "2024-06-01T00:00:00", "2024-06-01 ", " 2024-06-01",
                                  "24-06-01", "0000-01-01", "12024-06-01", "2024-06", "\xff"}) {
        const QByteArray name = QByteArray("the day \"") + day + '"';
        QTest::newRow(name.constData())
            << QStringList{"--to", QString::fromLocal8Bit(day)} << 2 << QByteArray("--to");
    }
}

void ConnrecordTotalsTest::refusesWhatIsNoRequest()
{
    QFETCH(QStringList, options);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, named);
    store(samples());
    const ConnrecordRun result = totals(options);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.error.startsWith("connrecord: ") && result.error.contains(named), result.error);
}

void ConnrecordTotalsTest::leavesAFileAloneThatIsNoStore()
{
    writeFile(m_store, "Dear diary, this is no database.\n");
    const ConnrecordRun result = totals({});
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.error.contains(m_store.toUtf8()), result.error);
    QCOMPARE(readFile(m_store), QByteArray("Dear diary, this is no database.\n"));
}

QTEST_GUILESS_MAIN(ConnrecordTotalsTest)

#include "tst_connrecordtotals.moc"
