// SPDX-License-Identifier: MIT
#include "ChangingHistory.h"
#include "DeliveryReceiver.h"
#include "SampleHistory.h"
#include "history/Store.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace history;

/// A history that leaves as JSON and comes back.
class ConnrecordJsonTest : public QObject
{
    Q_OBJECT

private slots:
    void bringsBackEverythingWithItsHours();
    void exportsWhatIsAsked_data();
    void exportsWhatIsAsked();
    void tellsTheWrongMemberAndStoresNothing();
    void refusesALineWithTooLargeANumber();
    void deliversAllThatHappens_data();
    void deliversAllThatHappens();
};

namespace
{

Connection connectionWithHours()
{
    Connection connection;
    connection.profile = "internet";
    connection.startUtc = 1706741400;
    connection.endUtc = 1706830000;
    connection.connectedSeconds = 88600;
    connection.uploadedBytes = 7;
    connection.downloadedBytes = 70;
    connection.operatorName = "Example";
    connection.sim = "8949000000000001234";
    connection.roaming = atHome;
    connection.hours = {
        {1706738400, false, 1, 10}, {1706742000, false, 2, 20}, {1706742000, true, 4, 40}};
    return connection;
}

} // namespace

void ConnrecordJsonTest::bringsBackEverythingWithItsHours()
{
    const SampleHistory history;
    QVERIFY(Store::openOrCreate(history.path().toStdString()).value().add(connectionWithHours()));
    const QByteArray exported = history.run({"export", "--format", "json"}).output;
    QCOMPARE(exported.count("\"hour\""), 3); // of the one connection that has any

    const QString other = history.folder() + "/other.db";
    const QStringList onOther = {"--store", other};
    const QStringList import = {"import", "--format", "json", "-"};
    QCOMPARE(connrecord(onOther + import, exported).output,
             QByteArray("Connections read: 5\nAdded: 5\nAlready there: 0\n"));
    QCOMPARE(connrecord(onOther + import, exported).output,
             QByteArray("Connections read: 5\nAdded: 0\nAlready there: 5\n"));
    const QStringList totals = {"totals", "--by", "hour,roaming,operator,sim,profile"};
    QCOMPARE(connrecord(onOther + totals).output, history.run(totals).output);
    QCOMPARE(connrecord(onOther + QStringList{"export"}).output, history.run({"export"}).output);
    QCOMPARE(connrecord(onOther + QStringList{"check"}).exitCode, 0);
}

void ConnrecordJsonTest::exportsWhatIsAsked_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<char>("first");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("as ever") << QStringList() << 'p' << 0;
    QTest::newRow("csv") << QStringList{"--format", "csv"} << 'p' << 0;
    QTest::newRow("json") << QStringList{"--format", "json"} << '[' << 0;
    QTest::newRow("for programs") << QStringList{"--json"} << '[' << 0;
    QTest::newRow("two answers") << QStringList{"--json", "--format", "csv"} << '\0' << 2;
    QTest::newRow("an unknown format") << QStringList{"--format", "xml"} << '\0' << 2;
}

void ConnrecordJsonTest::exportsWhatIsAsked()
{
    QFETCH(QStringList, options);
    QFETCH(char, first);
    QFETCH(int, exitCode);
    const SampleHistory history;
    const ConnrecordRun result = history.run(QStringList{"export"} + options);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.output.isEmpty() ? '\0' : result.output.at(0), first);
}

void ConnrecordJsonTest::tellsTheWrongMemberAndStoresNothing()
{
    const SampleHistory history;
    QByteArray exported = history.run({"export", "--format", "json"}).output;
    exported.replace("\"uploaded_bytes\": 4", "\"uploaded_bytes\": -4");
    const QString other = history.folder() + "/other.db";
    const ConnrecordRun result =
        connrecord({"--store", other, "import", "--format", "json", "-"}, exported);
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.startsWith("connrecord: standard input, connection 3: member "),
             result.error);
    QVERIFY(!QFile::exists(other));
}

void ConnrecordJsonTest::refusesALineWithTooLargeANumber()
{
    const SampleHistory history;
    const auto result =
        connrecord({"--store", history.folder() + "/other.db", "import", "--format", "jsonl", "-"},
                   "\n{\"uploaded_bytes\": 3e888}\n");
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.contains("standard input, line 2: number overflow parsing '3e888'"),
             result.error);
}

void ConnrecordJsonTest::deliversAllThatHappens_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("seed 1") << 1U;
    QTest::newRow("seed 2") << 2U;
}

/// With a delivery now and then; these arrive in any order, some twice.
void ConnrecordJsonTest::deliversAllThatHappens()
{
    QFETCH(unsigned, seed);
    const SampleHistory machine;
    ChangingHistory history(machine.path().toStdString(), seed);
    std::vector<QByteArray> deliveries;
    qint64 after = 0;
    for (int delivered = 0; delivered < 8; ++delivered) {
        for (int step = 0; step < 5; ++step)
            history.change();
        deliveries.push_back(
            machine.run({"export", "--format", "jsonl", "--after", QString::number(after)}).output);
        after = lastKeyOf(deliveries.back());
    }
    for (std::size_t again = deliveries.size(); again-- > 0;)
        deliveries.push_back(deliveries[history.random()() % deliveries.size()]);
    std::shuffle(deliveries.begin(), deliveries.end(), history.random());
    DeliveryReceiver receiver;
    for (const QByteArray &each : deliveries)
        receiver.take(each);
    QVERIFY(receiver.sent() == history.sent());
}

QTEST_GUILESS_MAIN(ConnrecordJsonTest)

#include "tst_connrecordjson.moc"
