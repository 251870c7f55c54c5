// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace history;

/// What the program tells of plans, with exit codes as scripts use them. Times are those of
/// Europe/Berlin.
class ConnrecordStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void tellsHowPlansStand();
    void tellsThePresentOne();
    void endsWithTheWorstState_data();
    void endsWithTheWorstState();
    void tellsOfNoPlan();
    void refusesWhatItCannotTell_data();
    void refusesWhatItCannotTell();
    void addsUpThePeriodsOfAPlan();
    void addsUpWhatAPlanCovers();
    void addsUpAtStartsAsAPlanCounts();
    void needsAPlanForItsPeriods();

private:
    ConnrecordRun run(const QStringList &arguments) const { return m_history->run(arguments); }
    void setPlan(const QStringList &arguments) const
    {
        const ConnrecordRun result = run(QStringList{"plan", "set"} + arguments);
        QVERIFY2(result.exitCode == 0, result.error);
    }

    QScopedPointer<SampleHistory> m_history;
};

/// Bytes received by the hour: 2 KB before the 15 May 2024 begins and 4 KB from then on, and
/// 8 KB roaming on the 20 June.
void ConnrecordStatusTest::init()
{
    m_history.reset(new SampleHistory);
    QVERIFY(run({"remove", "1", "2", "3", "4"}).exitCode == 0);
    Connection moved = sampleConnection("internet", 1715720400, 7200, 0, 6144);
    moved.hours = {{1715720400, false, 0, 2048}, {1715724000, false, 0, 4096}};
    Connection roaming = sampleConnection("other", 1718870400, 60, 0, 8192);
    roaming.hours = {{1718870400, true, 0, 8192}};
    auto store = Store::openOrCreate(m_history->path().toStdString());
    QVERIFY(store.value().add(moved) && store.value().add(roaming));
}

void ConnrecordStatusTest::tellsHowPlansStand()
{
    setPlan({"home", "--amount", "10KB", "--monthly", "15", "--network", "home"});
    setPlan({"weeks", "--every", "7", "--from", "2024-05-13"});
    setPlan({"trip", "--from", "2024-06-01", "--to", "2024-06-30", "--amount", "8KB"});
    const ConnrecordRun status = run({"status", "--at", "2024-05-16T00:00"});
    QCOMPARE(status.output, QByteArray("PLAN   PERIOD                       USED    AMOUNT     "
                                       "LEFT  DAYS LEFT    A DAY       PACE  STATE\n"
                                       "home   2024-05-15 to 2024-06-14  4.00 KB  10.00 KB  6.00 "
                                       "KB         30  0.19 KB  124.00 KB  within\n"
                                       "trip                                       8.00 KB         "
                                       "                                 no period\n"
                                       "weeks  2024-05-13 to 2024-05-19  6.00 KB                   "
                                       "          4            14.00 KB  within\n"));
    QCOMPARE(status.exitCode, 0);
    QCOMPARE(run({"status", "--plan", "home", "--at", "2024-05-16T00:00", "--json"}).json().array(),
             (QJsonArray{
                 QJsonObject{{"plan", "home"},
                             {"state", "within"},
                             {"amount_bytes", 10240},
                             {"period", QJsonObject{{"first", "2024-05-15"},
                                                    {"last", "2024-06-14"},
                                                    {"used_bytes", 4096},
                                                    {"left_bytes", 6144},
                                                    {"days_left", 30},
                                                    {"left_a_day_bytes", 204},
                                                    {"pace_bytes", 126976},
                                                    {"reached_percent", QJsonArray()}}},
                             {"periods_before", QJsonArray{QJsonObject{{"first", "2024-04-15"},
                                                                       {"last", "2024-05-14"},
                                                                       {"used_bytes", 2048},
                                                                       {"left_bytes", 8192}}}}}}));
    const QJsonObject begun =
        run({"status", "--plan", "weeks", "--at", "2024-05-13T12:00", "--json"})
            .json()
            .array()
            .first()
            .toObject()
            .value("period")
            .toObject();
    for (const char *const none : {"left_bytes", "left_a_day_bytes", "pace_bytes"})
        QVERIFY(begun.value(none).isNull());
    QCOMPARE(begun.value("used_bytes"), QJsonValue(0));
}

void ConnrecordStatusTest::tellsThePresentOne()
{
    setPlan({"home", "--amount", "10KB", "--already-used", "9KB"});
    const ConnrecordRun status = run({"status"});
    QCOMPARE(status.exitCode, 10);
    QVERIFY2(status.output.contains("9.00 KB") && status.output.contains("80 % reached"),
             status.output);
}

void ConnrecordStatusTest::endsWithTheWorstState_data()
{
    QTest::addColumn<QStringList>("plan");
    QTest::addColumn<QString>("at");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("state");
    const auto row = [](const char *name, const QStringList &plan, const char *at, int exitCode,
                        const char *state) {
        QTest::newRow(name) << plan << QString(at) << exitCode << QString(state);
    };
    row("none is there", {"--amount", "1KB", "--from", "2024-06-01", "--to", "2024-06-30"},
        "2024-05-31T12:00", 0, "no period");
    row("within", {"--amount", "8KB"}, "2024-05-31T12:00", 0, "within");
    row("not limited", {}, "2024-05-31T12:00", 0, "within");
    row("warned", {"--amount", "6200"}, "2024-05-31T12:00", 10, "warned");
    row("not warned yet", {"--amount", "6200"}, "2024-05-14T23:30", 0, "within");
    row("spent to the byte", {"--amount", "6144"}, "2024-05-31T12:00", 11, "spent");
    row("a byte left", {"--amount", "6145"}, "2024-05-31T12:00", 10, "warned");
    row("spent without a warning", {"--amount", "1KB", "--warn", "none"}, "2024-05-31T12:00", 11,
        "spent");
    row("warned behind the end", {"--amount", "6KB", "--warn", "120"}, "2024-05-31T12:00", 11,
        "spent");
    row("without a warning", {"--amount", "6145", "--warn", "none"}, "2024-05-31T12:00", 0,
        "within");
}

void ConnrecordStatusTest::endsWithTheWorstState()
{
    QFETCH(QStringList, plan);
    QFETCH(QString, at);
    QFETCH(QString, state);
    setPlan(QStringList{"of interest"} + plan);
    setPlan({"another", "--amount", "1TB"});
    setPlan({"yet another", "--from", "2020-01-01", "--to", "2020-01-31"});
    QTEST(run({"status", "--at", at}).exitCode, "exitCode");
    const ConnrecordRun one = run({"status", "--at", at, "--plan", "of interest", "--json"});
    QTEST(one.exitCode, "exitCode");
    QCOMPARE(one.json().array().first().toObject().value("state").toString(), state);
    QCOMPARE(run({"status", "--at", at, "--plan", "another"}).exitCode, 0);
}

void ConnrecordStatusTest::tellsOfNoPlan()
{
    const ConnrecordRun none = run({"status"});
    QCOMPARE(none.exitCode, 0);
    QVERIFY2(none.error.contains("connrecord plan set"), none.error);
    const ConnrecordRun json =
        connrecord({"--store", "/nonexistent/history.db", "status", "--json"});
    QCOMPARE(json.exitCode, 0);
    QCOMPARE(json.output, QByteArray("[]\n"));
}

void ConnrecordStatusTest::refusesWhatItCannotTell_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("named");
    QTest::newRow("an unknown plan")
        << QStringList{"--plan", "Home"} << 1 << QByteArray("has no plan \"Home\"");
    QTest::newRow("no time") << QStringList{"--at", "noon"} << 2
                             << QByteArray("For --at, \"noon\"");
    QTest::newRow("a time out of range")
        << QStringList{"--at", "2200-01-01T00:00"} << 1 << QByteArray("For --at");
}

void ConnrecordStatusTest::refusesWhatItCannotTell()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, named);
    setPlan({"home"});
    const ConnrecordRun refused = run(QStringList{"status"} + options);
    QTEST(refused.exitCode, "exitCode");
    QVERIFY2(refused.error.contains(named), refused.error);
    QCOMPARE(refused.output, QByteArray());
}

void ConnrecordStatusTest::addsUpThePeriodsOfAPlan()
{
    setPlan({"home", "--monthly", "15"});
    QCOMPARE(run({"totals", "--by", "period", "--plan", "home"}).output,
             QByteArray("PERIOD                 CONNECTIONS  UPLOADED  DOWNLOADED\n"
                        "2024-04-15/2024-05-14            1   0.00 KB     2.00 KB\n"
                        "2024-05-15/2024-06-14            1   0.00 KB     4.00 KB\n"
                        "2024-06-15/2024-07-14            1   0.00 KB     8.00 KB\n"));
    setPlan({"home", "--from", "2024-05-15", "--to", "2024-06-20"});
    QCOMPARE(run({"totals", "--by", "period,profile", "--plan", "home", "--json"}).json().array(),
             (QJsonArray{QJsonObject{{"profile", "internet"},
                                     {"period", "2024-05-15/2024-06-20"},
                                     {"connections", 1},
                                     {"uploaded_bytes", 0},
                                     {"downloaded_bytes", 4096}},
                         QJsonObject{{"profile", "other"},
                                     {"period", "2024-05-15/2024-06-20"},
                                     {"connections", 1},
                                     {"uploaded_bytes", 0},
                                     {"downloaded_bytes", 8192}}}));
}

void ConnrecordStatusTest::addsUpWhatAPlanCovers()
{
    const auto downloaded = [this](const QStringList &options) {
        const ConnrecordRun totals =
            run(QStringList{"totals", "--plan", "home", "--json"} + options);
        return totals.json().array().first().toObject().value("downloaded_bytes").toInt();
    };
    setPlan({"home"});
    QCOMPARE(downloaded({}), 14336);
    setPlan({"home", "--network", "roaming"});
    QCOMPARE(downloaded({}), 8192);
    QCOMPARE(downloaded({"--to", "2024-05-31"}), 0);
    setPlan({"home", "--network", "both", "--profile", "internet"});
    QCOMPARE(downloaded({}), 6144);
    QCOMPARE(downloaded({"--from", "2024-05-15"}), 4096);
}

/// What is not known by the hour is at home, whatever is known of the connection.
void ConnrecordStatusTest::addsUpAtStartsAsAPlanCounts()
{
    Connection withoutHours = sampleConnection("third", 1718870400, 60, 0, 1024);
    withoutHours.roaming = history::abroad;
    QVERIFY(Store::openOrCreate(m_history->path().toStdString()).value().add(withoutHours));
    const auto downloadedOf = [this](const QString &network) {
        setPlan({"home", "--profile", "third", "--network", network});
        return run({"totals", "--by-start", "--plan", "home", "--json"})
            .json()
            .array()
            .first()
            .toObject()
            .value("downloaded_bytes")
            .toInt();
    };
    QCOMPARE(downloadedOf("home"), 1024);
    QCOMPARE(downloadedOf("roaming"), 0);
}

void ConnrecordStatusTest::needsAPlanForItsPeriods()
{
    const ConnrecordRun missing = run({"totals", "--by", "period"});
    QCOMPARE(missing.exitCode, 2);
    QVERIFY2(missing.error.contains("--plan"), missing.error);
    const ConnrecordRun unknown = run({"totals", "--by", "period", "--plan", "home"});
    QCOMPARE(unknown.exitCode, 1);
    QVERIFY2(unknown.error.contains("has no plan \"home\""), unknown.error);
}

QTEST_GUILESS_MAIN(ConnrecordStatusTest)

#include "tst_connrecordstatus.moc"
