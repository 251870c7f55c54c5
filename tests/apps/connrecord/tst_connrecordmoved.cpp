// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"
#include "history/Store.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace history;

/// The program's sums over a real store, bytes counted when they moved.
class ConnrecordMovedTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void addsUpTheDaysAndMonthsOfOneConnection();
    void addsUpWhatIsAsked_data();
    void addsUpWhatIsAsked();
    void countsTheHoursOfChangesOfTheClock_data();
    void countsTheHoursOfChangesOfTheClock();
    void tellsTheHourThatComesTwiceApart();
    void countsConnectionsThatLast();
    void countsConnectionsWithoutHoursAtTheirStart();
    void refusesASumThatIsTooLarge();

private:
    void store(const Connection &connection) const
    {
        auto opened = Store::openOrCreate(m_store.toStdString());
        QVERIFY(opened.value().add(connection));
    }
    ConnrecordRun totals(const QStringList &options) const
    {
        return connrecord(QStringList{"--store", m_store, "totals"} + options);
    }
    QStringList sums(const QString &by, const QStringList &options = {}) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_store;
};

namespace
{

// 2024-01-31 23:00 in Europe/Berlin, the zone of the tests.
constexpr std::int64_t lastHourOfJanuary = 1706738400;

/// A connection with these bytes sent in hours that follow each other, ten times as
/// many received.
Connection connection(std::int64_t firstHour, const std::vector<std::int64_t> &uploaded)
{
    Connection made;
    made.profile = "internet";
    made.startUtc = firstHour + 50 * 60;
    made.endUtc = made.startUtc;
    for (const std::int64_t bytes : uploaded) {
        made.hours.push_back({firstHour, false, bytes, 10 * bytes});
        made.uploadedBytes += bytes;
        made.downloadedBytes += 10 * bytes;
        firstHour += secondsPerHour;
        made.endUtc = std::max(made.endUtc, firstHour);
    }
    return made;
}

/// From 31 January 23:50 to 2 February.
Connection overTwoMidnights()
{
    std::vector<std::int64_t> bytes(26, 0);
    bytes[0] = 1;
    bytes[1] = 2;
    bytes[24] = 4;
    bytes[25] = 8;
    return connection(lastHourOfJanuary, bytes);
}

} // namespace

void ConnrecordMovedTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_store = m_folder->filePath("connections.db");
}

/// Each as "what they are told apart by, connections, sent, received".
QStringList ConnrecordMovedTest::sums(const QString &by, const QStringList &options) const
{
    QStringList sums;
    const QStringList names = by.split(',');
    const ConnrecordRun run = totals(QStringList{"--by", by, "--json"} + options);
    for (const QJsonValue &each : run.json().array()) {
        const QJsonObject sum = each.toObject();
        QStringList values;
        for (const QString &name : names)
            values << sum.value(name).toString();
        for (const char *const name : {"connections", "uploaded_bytes", "downloaded_bytes"})
            values << QString::number(sum.value(name).toInt());
        sums << values.join(' ');
    }
    return sums;
}

void ConnrecordMovedTest::addsUpTheDaysAndMonthsOfOneConnection()
{
    store(overTwoMidnights());
    QCOMPARE(sums("day"),
             (QStringList{"2024-01-31 1 1 10", "2024-02-01 1 6 60", "2024-02-02 1 8 80"}));
    QCOMPARE(sums("month"), (QStringList{"2024-01 1 1 10", "2024-02 1 14 140"}));
    QCOMPARE(sums("year"), QStringList{"2024 1 15 150"});
    QCOMPARE(sums("day", {"--by-start"}), QStringList{"2024-01-31 1 15 150"});
    QCOMPARE(sums("day", {"--from", "2024-02-02"}), QStringList{"2024-02-02 1 8 80"});
    QCOMPARE(totals({}).output, QByteArray("CONNECTIONS  UPLOADED  DOWNLOADED\n"
                                           "          1   0.01 KB     0.15 KB\n"));
}

void ConnrecordMovedTest::addsUpWhatIsAsked_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("profile") << "profile" << QStringList{"internet 2 19 190", "other 1 32 320"};
    QTest::newRow("sim") << "sim" << QStringList{" 1 15 150", "89490001 2 36 360"};
    QTest::newRow("operator, its code where it has no name")
        << "operator" << QStringList{" 1 15 150", "26201 1 32 320", "Example 1 4 40"};
    QTest::newRow("roaming") << "roaming" << QStringList{"home 3 49 490", "roaming 1 2 20"};
    QTest::newRow("several") << "roaming,month,profile"
                             << QStringList{"home 2024-01 internet 1 1 10",
                                            "home 2024-02 internet 2 16 160",
                                            "roaming 2024-02 internet 1 2 20",
                                            "home 2024-02 other 1 32 320"};
}

void ConnrecordMovedTest::addsUpWhatIsAsked()
{
    QFETCH(QString, by);
    QFETCH(QStringList, expected);
    store(overTwoMidnights());
    Connection named = connection(lastHourOfJanuary + 86400, {2, 2});
    named.sim = "89490001";
    named.operatorName = "Example";
    named.operatorCode = "26202";
    named.hours[1].isRoaming = true;
    store(named);
    Connection coded = connection(lastHourOfJanuary + 86400, {32});
    coded.profile = "other";
    coded.sim = "89490001";
    coded.operatorCode = "26201";
    store(coded);
    QCOMPARE(sums(by), expected);
}

void ConnrecordMovedTest::countsTheHoursOfChangesOfTheClock_data()
{
    QTest::addColumn<qint64>("firstHour");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("clocks go forward") << qint64(1711753200) // 2024-03-30 00:00
                                       << QStringList{"2024-03-30 1 24 240", "2024-03-31 1 23 230",
                                                      "2024-04-01 1 24 240", "2024-04-02 1 1 10"};
    QTest::newRow("clocks go back")
        << qint64(1729893600) // 2024-10-26 00:00
        << QStringList{"2024-10-26 1 24 240", "2024-10-27 1 25 250", "2024-10-28 1 23 230"};
}

void ConnrecordMovedTest::countsTheHoursOfChangesOfTheClock()
{
    QFETCH(qint64, firstHour);
    QFETCH(QStringList, expected);
    store(connection(firstHour, std::vector<std::int64_t>(72, 1)));
    QCOMPARE(sums("day"), expected);
}

void ConnrecordMovedTest::tellsTheHourThatComesTwiceApart()
{
    store(connection(1729983600, {1, 2, 4, 8})); // from 2024-10-27 01:00 on
    QCOMPARE(sums("hour"),
             (QStringList{"2024-10-27T01:00+02:00 1 1 10", "2024-10-27T02:00+02:00 1 2 20",
                          "2024-10-27T02:00+01:00 1 4 40", "2024-10-27T03:00+01:00 1 8 80"}));
}

void ConnrecordMovedTest::countsConnectionsThatLast()
{
    store(connection(lastHourOfJanuary, {1}));
    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.profile = "internet";
    open.startUtc = lastHourOfJanuary;
    open.updatedUtc = lastHourOfJanuary + 2 * secondsPerHour;
    QVERIFY(Store::openOrCreate(m_store.toStdString()).value().begin(open));
    open = Store::openOrCreate(m_store.toStdString()).value().listOpen().value().front();
    open.uploadedBytes = 6;
    open.hours = {{lastHourOfJanuary, false, 2, 0},
                  {lastHourOfJanuary + secondsPerHour, false, 4, 0}};
    QVERIFY(Store::openOrCreate(m_store.toStdString()).value().checkpoint(open));
    QCOMPARE(sums("month"), (QStringList{"2024-01 2 3 10", "2024-02 1 4 0"}));
    QCOMPARE(sums("month", {"--finished"}), QStringList{"2024-01 1 1 10"});
    QCOMPARE(sums("month", {"--by-start"}), QStringList{"2024-01 1 1 10"});
}

void ConnrecordMovedTest::countsConnectionsWithoutHoursAtTheirStart()
{
    Connection imported = overTwoMidnights();
    imported.hours.clear();
    store(imported);
    QCOMPARE(sums("day"), QStringList{"2024-01-31 1 15 150"});
    QCOMPARE(sums("hour"), QStringList{"2024-01-31T23:00+01:00 1 15 150"});
}

void ConnrecordMovedTest::refusesASumThatIsTooLarge()
{
    Connection large = connection(lastHourOfJanuary, {1});
    large.hours.clear();
    large.uploadedBytes = std::numeric_limits<std::int64_t>::max();
    store(large);
    store(connection(lastHourOfJanuary + 86400, {1}));
    const ConnrecordRun refused = totals({});
    QCOMPARE(refused.exitCode, 1);
    QVERIFY2(refused.error.contains("bytes sent") && refused.error.contains(m_store.toUtf8()),
             refused.error);
    QCOMPARE(totals({"--by", "day"}).exitCode, 0);
}

QTEST_GUILESS_MAIN(ConnrecordMovedTest)

#include "tst_connrecordmoved.moc"
