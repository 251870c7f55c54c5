// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include <QTest>

/// Which connections of a history list, export and remove are for.
class ConnrecordSelectionTest : public QObject
{
    Q_OBJECT

private slots:
    void takesWhatIsSelected_data();
    void takesWhatIsSelected();
    void refusesWhatSelectsNothing_data();
    void refusesWhatSelectsNothing();
    void takesNoMoreMemoryForMore_data();
    void takesNoMoreMemoryForMore();
};

void ConnrecordSelectionTest::takesWhatIsSelected_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QList<int>>("keys");

    using Keys = QList<int>;
    QTest::newRow("from a day on") << QStringList{"--from", "2024-06-01"} << Keys{3, 4};
    QTest::newRow("up to a day") << QStringList{"--to", "2024-05-31"} << Keys{1, 2};
    QTest::newRow("one day") << QStringList{"--from", "2024-06-01", "--to", "2024-06-01"}
                             << Keys{3};
    QTest::newRow("a profile") << QStringList{"--profile", "internet"} << Keys{1, 3};
    QTest::newRow("no profile") << QStringList{"--profile="} << Keys{4};
    QTest::newRow("a profile that is not there") << QStringList{"--profile", "INTERNET"} << Keys{};
    QTest::newRow("a SIM by its end") << QStringList{"--sim", "1234"} << Keys{3};
    QTest::newRow("another SIM") << QStringList{"--sim", "8949"} << Keys{};
    QTest::newRow("no SIM") << QStringList{"--sim="} << Keys{1, 2, 4};
    QTest::newRow("the last three") << QStringList{"--limit", "3"} << Keys{2, 3, 4};
    QTest::newRow("more than there are")
        << QStringList{"--limit", "9223372036854775807"} << Keys{1, 2, 3, 4};
    QTest::newRow("none at all") << QStringList{"--limit", "0"} << Keys{};
    QTest::newRow("the last one of a profile up to a day")
        << QStringList{"--profile", "internet", "--to", "2024-05-31", "--limit", "1"} << Keys{1};
}

void ConnrecordSelectionTest::takesWhatIsSelected()
{
    QFETCH(QStringList, options);
    QFETCH(QList<int>, keys);
    const SampleHistory history;
    QCOMPARE(keysOf(history.run(QStringList{"list", "--json"} + options)), keys);
    QCOMPARE(keysOf(history.run(QStringList{"export", "--json"} + options)), keys);
    QCOMPARE(history.run(QStringList{"list"} + options).output.count('\n'), keys.size() + 1);
    QCOMPARE(history.run(QStringList{"export"} + options).output.count('\n'), keys.size() + 1);

    QCOMPARE(history.run(QStringList{"remove"} + options).exitCode, 0);
    QList<int> rest = {1, 2, 3, 4};
    for (const int key : keys)
        rest.removeAll(key);
    QCOMPARE(history.keys(), rest);
}

void ConnrecordSelectionTest::refusesWhatSelectsNothing_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("named");

    QTest::newRow("no day") << QStringList{"--from", "yesterday"} << 2 << QByteArray("--from");
    QTest::newRow("days in the wrong order")
        << QStringList{"--from", "2024-06-02", "--to", "2024-06-01"} << 1
        << QByteArray("2024-06-02");
    QTest::newRow("no number") << QStringList{"--limit", "many"} << 2 << QByteArray("--limit");
    QTest::newRow("less than nothing") << QStringList{"--limit=-1"} << 1 << QByteArray("--limit");
}

void ConnrecordSelectionTest::refusesWhatSelectsNothing()
{
    QFETCH(QStringList, options);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, named);
    const SampleHistory history;
    for (const char *const command : {"list", "export", "remove"}) {
        const ConnrecordRun result = history.run(QStringList{command} + options);
        QCOMPARE(result.exitCode, exitCode);
        QCOMPARE(result.output, QByteArray());
        QVERIFY2(result.error.contains(named), result.error);
    }
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

void ConnrecordSelectionTest::takesNoMoreMemoryForMore_data()
{
    QTest::addColumn<QString>("command");

    for (const char *const command : {"list", "list --json", "export", "export --json"})
        QTest::newRow(command) << command;
}

void ConnrecordSelectionTest::takesNoMoreMemoryForMore()
{
    QFETCH(QString, command);
#ifdef SANITIZED
    QSKIP("sanitizers take more memory than a limit allows", "");
#endif
    const SampleHistory history;
    writeFile(history.folder() + "/more.csv", csvOf(20000));
    QCOMPARE(history.run({"import", "--format", "csv", history.folder() + "/more.csv"}).exitCode,
             0);
    const auto limited = [&](int kilobytes, const QString &arguments) {
        return runProgram(
            "sh",
            {"-c",
             QString("ulimit -v %1 && \"$0\" --store \"$1\" %2").arg(kilobytes).arg(arguments),
             connrecordProgram(), history.path()});
    };
    constexpr int step = 8192;
    int enough = step;
    while (limited(enough, command + " --limit 1").exitCode != 0)
        enough += step;
    const ConnrecordRun all = limited(enough + step, command);
    QCOMPARE(all.exitCode, 0);
    QCOMPARE(all.output, history.run(command.split(' ')).output);
}

QTEST_GUILESS_MAIN(ConnrecordSelectionTest)

#include "tst_connrecordselection.moc"
