// SPDX-License-Identifier: MIT
#include "SampleHistory.h"

#include <QTest>

/// How the program asks before it removes, and what it removes then.
class ConnrecordRemoveTest : public QObject
{
    Q_OBJECT

private slots:
    void showsAndAsksOnATerminal_data();
    void showsAndAsksOnATerminal();
    void takesTheEndOfInputForANo();
    void keepsTheQuestionOutOfTheResult();
    void onlyShows_data();
    void onlyShows();
    void asksNobodyWhoHasAgreed();
    void asksNobodyAboutNothing();
    void doesNotAskWhereNobodyAnswers();
    void removesNothingOfAnUnknownKey();
    void refusesWhatIsNoRequest_data();
    void refusesWhatIsNoRequest();

private:
    static QString commandOn(const SampleHistory &history, const QString &arguments)
    {
        return connrecordProgram() + " --store " + history.path() + " remove " + arguments;
    }
};

void ConnrecordRemoveTest::showsAndAsksOnATerminal_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<QList<int>>("left");

    using Keys = QList<int>;
    const QByteArray one = "Remove this connection? [y/N] ";
    const QByteArray two = "Remove these 2 connections? [y/N] ";
    QTest::newRow("yes") << "--profile internet" << QByteArray("yes\n") << two << Keys{2, 4};
    QTest::newRow("y") << "1 3 1" << QByteArray("y\n") << two << Keys{2, 4};
    QTest::newRow("Y") << "1" << QByteArray("Y\n") << one << Keys{2, 3, 4};
    QTest::newRow("no") << "1" << QByteArray("no\n") << one << Keys{1, 2, 3, 4};
    QTest::newRow("just Enter") << "--to 2024-05-01" << QByteArray("\n") << one << Keys{1, 2, 3, 4};
    QTest::newRow("something else") << "1" << QByteArray("yeah\n") << one << Keys{1, 2, 3, 4};
}

void ConnrecordRemoveTest::showsAndAsksOnATerminal()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, answer);
    QFETCH(QByteArray, question);
    QFETCH(QList<int>, left);
    const SampleHistory history;
    const ConnrecordRun result = onTerminal(commandOn(history, arguments), answer);
    QVERIFY2(result.output.contains("  1  internet  2024-05-01 00:00:00"), result.output);
    QVERIFY2(!result.output.contains("2024-06-02"), result.output);
    QVERIFY2(result.output.contains(question), result.output);
    QCOMPARE(history.keys(), left);
    const bool isRefused = left.size() == 4;
    QCOMPARE(result.exitCode, isRefused ? 1 : 0);
    QCOMPARE(result.output.contains("connrecord: Nothing was removed."), isRefused);
}

void ConnrecordRemoveTest::takesTheEndOfInputForANo()
{
    const SampleHistory history;
    QCOMPARE(onTerminal(commandOn(history, "1"), "\x04").exitCode, 1);
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

void ConnrecordRemoveTest::keepsTheQuestionOutOfTheResult()
{
    const SampleHistory history;
    const QString result = history.folder() + "/result";
    QCOMPARE(onTerminal(commandOn(history, "2 --json >" + result), "y\n").exitCode, 0);
    QCOMPARE(readFile(result), QByteArray("{\n    \"removed\": [\n        2\n    ]\n}\n"));
}

void ConnrecordRemoveTest::onlyShows_data()
{
    QTest::addColumn<QStringList>("options");

    QTest::newRow("keys") << QStringList{"3", "4"};
    QTest::newRow("a selection") << QStringList{"--from", "2024-06-01"};
    QTest::newRow("agreed to already") << QStringList{"3", "4", "--yes"};
}

void ConnrecordRemoveTest::onlyShows()
{
    QFETCH(QStringList, options);
    const SampleHistory history;
    const QStringList arguments = QStringList{"remove", "--dry-run"} + options;
    QCOMPARE(history.run(arguments).output, history.run({"list", "--from", "2024-06-01"}).output);
    QCOMPARE(keysOf(history.run(arguments + QStringList{"--json"})), (QList<int>{3, 4}));
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

void ConnrecordRemoveTest::asksNobodyWhoHasAgreed()
{
    const SampleHistory history;
    const ConnrecordRun result = onTerminal(commandOn(history, "--yes --to 2024-05-31"));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(history.keys(), (QList<int>{3, 4}));
}

void ConnrecordRemoveTest::asksNobodyAboutNothing()
{
    const SampleHistory history;
    const ConnrecordRun result = onTerminal(commandOn(history, "--profile other --json"));
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.output.contains("\"removed\": []") && !result.output.contains('?'),
             result.output);
}

void ConnrecordRemoveTest::doesNotAskWhereNobodyAnswers()
{
    const SampleHistory history;
    const ConnrecordRun result = history.run({"remove", "2", "--json"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(history.keys(), (QList<int>{1, 3, 4}));
}

void ConnrecordRemoveTest::removesNothingOfAnUnknownKey()
{
    const SampleHistory history;
    const QByteArray sentence = "has no record with the key 7; nothing was removed, ";
    QVERIFY(history.run({"remove", "1", "7"}).error.contains(sentence));
    QVERIFY(history.run({"remove", "1", "7", "--dry-run"}).error.contains(sentence));
    QVERIFY(onTerminal(commandOn(history, "1 7"), "y\n").output.contains(sentence));
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

void ConnrecordRemoveTest::refusesWhatIsNoRequest_data()
{
    QTest::addColumn<QStringList>("options");

    QTest::newRow("nothing") << QStringList();
    QTest::newRow("agreed to nothing") << QStringList{"--yes"};
    QTest::newRow("keys and a selection") << QStringList{"1", "--profile", "internet"};
}

void ConnrecordRemoveTest::refusesWhatIsNoRequest()
{
    QFETCH(QStringList, options);
    const SampleHistory history;
    const ConnrecordRun result = history.run(QStringList{"remove"} + options);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.error.startsWith("connrecord: remove "), result.error);
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

QTEST_GUILESS_MAIN(ConnrecordRemoveTest)

#include "tst_connrecordremove.moc"
