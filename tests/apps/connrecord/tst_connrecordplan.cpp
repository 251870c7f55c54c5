// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include <QDate>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <future>
#include <vector>

/// The program's plans, as a user makes and changes them.
class ConnrecordPlanTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_history.reset(new SampleHistory); }

    void areMadeAndListed();
    void areChangedInWhatIsGiven_data();
    void areChangedInWhatIsGiven();
    void keepTheChangesOfSeveralPrograms();
    void areAlreadyUsedInThePresentPeriod();
    void areRoundedDown();
    void areRemoved();
    void areRefused_data();
    void areRefused();
    void makeNoHistoryForWhatIsWrong();
    void areInABackup();
    void ofAnotherProgramAreNamed();

private:
    ConnrecordRun run(const QStringList &arguments) const { return m_history->run(arguments); }
    QJsonObject plan(const QString &name) const;

    QScopedPointer<SampleHistory> m_history;
};

QJsonObject ConnrecordPlanTest::plan(const QString &name) const
{
    for (const QJsonValue &each : run({"plan", "list", "--json"}).json().array()) {
        if (each.toObject().value("name") == name)
            return each.toObject();
    }
    return {};
}

void ConnrecordPlanTest::areMadeAndListed()
{
    QCOMPARE(
        run({"plan", "list"}).output,
        QByteArray("PLAN  COVERS  NETWORK  COUNTS  AMOUNT  PERIOD  ALREADY USED  WARN AT %\n"));
    QCOMPARE(run({"plan", "list", "--json"}).json().array(), QJsonArray());
    QCOMPARE(run({"plan", "set", "home", "--amount", "10GB"}).exitCode, 0);
    const ConnrecordRun made =
        run({"plan", "set", "a trip", "--sim", "8949000000000001234", "--network", "roaming",
             "--count", "received", "--every", "28", "--from", "2024-05-06", "--warn", "100,50"});
    QCOMPARE(made.error, QByteArray());
    QCOMPARE(made.output,
             QByteArray("PLAN    COVERS    NETWORK  COUNTS    AMOUNT  PERIOD                       "
                        "  ALREADY USED  WARN AT %\n"
                        "a trip  sim 1234  roaming  received          every 28 days from "
                        "2024-05-06                50,100\n"));
    QCOMPARE(run({"plan", "list"}).output,
             QByteArray("PLAN    COVERS      NETWORK  COUNTS      AMOUNT  PERIOD                 "
                        "        ALREADY USED  WARN AT %\n"
                        "a trip  sim 1234    roaming  received            every 28 days from "
                        "2024-05-06                50,100\n"
                        "home    everything  both     both      10.00 GB  monthly from day 1      "
                        "                     80,100\n"));
    QCOMPARE(plan("a trip").value("covered"), QJsonValue("8949000000000001234"));
    QCOMPARE(plan("home"), (QJsonObject{{"name", "home"},
                                        {"covers", "everything"},
                                        {"covered", ""},
                                        {"network", "both"},
                                        {"counts", "both"},
                                        {"amount_bytes", 10737418240.0},
                                        {"period", QJsonObject{{"monthly", 1}}},
                                        {"already_used", QJsonValue::Null},
                                        {"warn_at_percent", QJsonArray{80, 100}}}));
}

void ConnrecordPlanTest::areChangedInWhatIsGiven_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QJsonObject>("changes");
    const auto row = [](const char *name, const QStringList &options, const QJsonObject &changes) {
        QTest::newRow(name) << options << changes;
    };
    row("nothing", {}, {});
    row("the amount", {"--amount", "1.5 GB"}, {{"amount_bytes", 1610612736}});
    row("no amount", {"--amount", "none"}, {{"amount_bytes", QJsonValue::Null}});
    row("the profile", {"--profile", "Internet"}, {{"covered", "Internet"}});
    row("the SIM", {"--sim", "1234"}, {{"covers", "sim"}, {"covered", "1234"}});
    row("everything", {"--everything"}, {{"covers", "everything"}, {"covered", ""}});
    row("the network", {"--network", "both"}, {{"network", "both"}});
    row("the direction", {"--count", "received"}, {{"counts", "received"}});
    row("monthly", {"--monthly", "31"}, {{"period", QJsonObject{{"monthly", 31}}}});
    row("once", {"--from", "2024-02-29", "--to", "2024-03-30"},
        {{"period", QJsonObject{{"from", "2024-02-29"}, {"to", "2024-03-30"}}}});
    row("no warnings", {"--warn", "none"}, {{"warn_at_percent", QJsonArray()}});
    row("the warnings", {"--warn", "90,70,90"}, {{"warn_at_percent", QJsonArray{70, 90}}});
}

void ConnrecordPlanTest::areChangedInWhatIsGiven()
{
    QFETCH(QStringList, options);
    QFETCH(QJsonObject, changes);
    QCOMPARE(
        run({"plan", "set", "home", "--amount", "500MB", "--profile", "internet", "--network",
             "home", "--count", "sent", "--every", "7", "--from", "2024-01-01", "--warn", "95"})
            .exitCode,
        0);
    QJsonObject expected = plan("home");
    QCOMPARE(expected.value("amount_bytes"), QJsonValue(524288000));
    for (auto change = changes.begin(); change != changes.end(); ++change)
        expected[change.key()] = change.value();
    const ConnrecordRun changed = run(QStringList{"plan", "set", "home", "--json"} + options);
    QCOMPARE(changed.exitCode, 0);
    QCOMPARE(changed.json().object(), expected);
    QCOMPARE(plan("home"), expected);
}

/// Of programs that run at the same time, each with an option of its own.
void ConnrecordPlanTest::keepTheChangesOfSeveralPrograms()
{
    for (int round = 1; round <= 10; ++round) {
        const QString number = QString::number(round);
        const std::vector<QStringList> options{
            {"--amount", number}, {"--warn", number}, {"--monthly", number}, {"--sim", number}};
        std::vector<std::future<ConnrecordRun>> runs;
        for (const QStringList &each : options)
            runs.push_back(std::async(std::launch::async, [this, each] {
                return run(QStringList{"plan", "set", "home"} + each);
            }));
        for (auto &each : runs)
            QCOMPARE(each.get().error, QByteArray());
        const QJsonObject stored = plan("home");
        QCOMPARE(stored.value("amount_bytes"), QJsonValue(round));
        QCOMPARE(stored.value("warn_at_percent"), QJsonValue(QJsonArray{round}));
        QCOMPARE(stored.value("period"), QJsonValue(QJsonObject{{"monthly", round}}));
        QCOMPARE(stored.value("covered"), QJsonValue(number));
    }
}

void ConnrecordPlanTest::areAlreadyUsedInThePresentPeriod()
{
    const QJsonObject used = run({"plan", "set", "home", "--already-used", "-2KB", "--json"})
                                 .json()
                                 .object()
                                 .value("already_used")
                                 .toObject();
    QCOMPARE(used.value("bytes"), QJsonValue(-2048));
    QVERIFY(
        QDate::fromString(used.value("day").toString(), Qt::ISODate).daysTo(QDate::currentDate()) <=
        1);
    QCOMPARE(run({"plan", "set", "home", "--amount", "1GB"}).exitCode, 0);
    QCOMPARE(plan("home").value("already_used").toObject(), used);
    QCOMPARE(run({"plan", "set", "home", "--already-used", "0"}).exitCode, 0);
    QCOMPARE(plan("home").value("already_used"), QJsonValue(QJsonValue::Null));
}

void ConnrecordPlanTest::areRoundedDown()
{
    QCOMPARE(run({"plan", "set", "home", "--amount", "1048575KB", "--already-used", "1048575KB"})
                 .exitCode,
             0);
    for (const QStringList &command : {QStringList{"plan", "list"}, QStringList{"status"}})
        QCOMPARE(run(command).output.count("1023.99 MB"), 2);
}

void ConnrecordPlanTest::areRemoved()
{
    QCOMPARE(run({"plan", "set", "home"}).exitCode, 0);
    QCOMPARE(run({"plan", "set", "work"}).exitCode, 0);
    const ConnrecordRun unknown = run({"plan", "remove", "Home"});
    QCOMPARE(unknown.exitCode, 1);
    QVERIFY2(unknown.error.contains("has no plan \"Home\"") &&
                 unknown.error.contains(m_history->path().toUtf8()),
             unknown.error);
    const ConnrecordRun removed = run({"plan", "remove", "home"});
    QCOMPARE(removed.exitCode, 0);
    QCOMPARE(removed.output + removed.error, QByteArray());
    QVERIFY(plan("home").isEmpty());
    QCOMPARE(run({"plan", "remove", "work", "--json"}).json().object(),
             (QJsonObject{{"removed", "work"}}));
    QCOMPARE(m_history->keys(), (QList<int>{1, 2, 3, 4}));
    QCOMPARE(connrecord({"--store", "/nonexistent/history.db", "plan", "remove", "home"}).exitCode,
             1);
}

void ConnrecordPlanTest::areRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("named");
    const auto row = [](const QStringList &options, int exitCode, const char *named) {
        QTest::newRow(qPrintable(options.join(' ')))
            << QStringList{"plan", "set", "home"} + options << exitCode << QByteArray(named);
    };
    row({"--amount", "much"}, 2, "For --amount, \"much\" is not a size such as 10GB");
    row({"--amount", "9000000TB"}, 1, "For --amount, \"9000000TB\" is more than");
    row({"--amount", "-1KB"}, 1, "The amount of the plan \"home\"");
    row({"--network", "moon"}, 2, "home|roaming|both, not moon");
    row({"--count", "up"}, 2, "both|received|sent, not up");
    row({"--monthly", "0"}, 1, "For --monthly, \"0\" is less than 1");
    row({"--monthly", "32"}, 1, "For --monthly, \"32\" is more than 31");
    row({"--monthly", "first"}, 2, "For --monthly");
    row({"--monthly", "1", "--every", "28"}, 2, "--monthly excludes --every");
    row({"--every", "28"}, 2, "--every needs --from");
    row({"--every", "0", "--from", "2024-01-01"}, 1, "For --every, \"0\" is less than 1");
    row({"--every", "28", "--from", "2024-02-30"}, 2, "For --from");
    row({"--every", "28", "--from", "1969-12-31"}, 1, "not between 1970-01-01 and 9999-12-31");
    row({"--from", "2024-01-01"}, 2, "once --from DATE --to DATE");
    row({"--to", "2024-01-01"}, 2, "once --from DATE --to DATE");
    row({"--from", "2024-01-02", "--to", "2024-01-01"}, 1,
        "The last day, 2024-01-01, is before the first one, 2024-01-02.");
    row({"--profile", "internet", "--sim", "1234"}, 2, "--profile excludes --sim");
    row({"--sim", "12345678901234567890123456789012"}, 1, "The SIM of the plan \"home\"");
    row({"--warn", ""}, 2, "For --warn");
    row({"--warn", "80,,90"}, 2, "For --warn");
    row({"--warn", "0"}, 1, "For --warn, \"0\" is less than 1");
    row({"--warn", "1001"}, 1, "For --warn, \"1001\" is more than 1000");
    row({"--from", "2000-01-01", "--to", "2000-01-31", "--already-used", "1GB"}, 1,
        "today lies in no period");
    QTest::newRow("an empty name") << QStringList{"plan", "set", ""} << 1 << QByteArray("The name");
    QTest::newRow("no name") << QStringList{"plan", "set"} << 2 << QByteArray("NAME is required");
    QTest::newRow("no command") << QStringList{"plan"} << 2
                                << QByteArray("A command behind \"plan\" is required");
    QTest::newRow("an unknown command")
        << QStringList{"plan", "buy"} << 2 << QByteArray("There is no command \"plan buy\"");
}

void ConnrecordPlanTest::areRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, named);
    const ConnrecordRun refused = run(arguments);
    QVERIFY2(refused.error.contains(named), refused.error);
    QCOMPARE(refused.exitCode, exitCode);
    QCOMPARE(refused.output, QByteArray());
    QCOMPARE(run({"plan", "list", "--json"}).json().array(), QJsonArray());
}

void ConnrecordPlanTest::makeNoHistoryForWhatIsWrong()
{
    const QString path = m_history->folder() + "/new.db";
    QCOMPARE(connrecord({"--store", path, "plan", "set", "home", "--every", "28"}).exitCode, 2);
    QCOMPARE(connrecord({"--store", path, "plan", "list"}).exitCode, 0);
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(connrecord({"--store", path, "plan", "set", "home"}).exitCode, 0);
    QVERIFY(QFileInfo::exists(path));
}

void ConnrecordPlanTest::areInABackup()
{
    QCOMPARE(run({"plan", "set", "home", "--amount", "10GB"}).exitCode, 0);
    const QString copy = m_history->folder() + "/copy.db";
    QCOMPARE(run({"backup", copy}).exitCode, 0);
    QCOMPARE(connrecord({"--store", copy, "plan", "list"}).output, run({"plan", "list"}).output);
}

void ConnrecordPlanTest::ofAnotherProgramAreNamed()
{
    QCOMPARE(run({"plan", "set", "home"}).exitCode, 0);
    QCOMPARE(
        runProgram("sqlite3", {m_history->path(), "UPDATE plan SET network = 'moon'"}).exitCode, 0);
    const QByteArray problem = "The network of the plan \"home\", \"moon\", is none of";
    for (const QStringList &command :
         {QStringList{"plan", "list"}, QStringList{"status"}, QStringList{"check"}}) {
        const ConnrecordRun result = run(command);
        QCOMPARE(result.exitCode, 3);
        QVERIFY2(result.error.contains(problem), result.error);
    }
    QCOMPARE(run({"plan", "remove", "home"}).exitCode, 0);
    QCOMPARE(run({"check"}).exitCode, 0);
}

QTEST_GUILESS_MAIN(ConnrecordPlanTest)

#include "tst_connrecordplan.moc"
