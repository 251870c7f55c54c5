// SPDX-License-Identifier: MIT
#include "SampleHistory.h"
#include "history/Store.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <atomic>
#include <thread>

using namespace history;

/// Copies of a history, and whether it is sound.
class ConnrecordUpkeepTest : public QObject
{
    Q_OBJECT

private slots:
    void copiesTheWholeHistory();
    void copiesOneMomentWhileOthersWrite();
    void replacesNothing_data();
    void replacesNothing();
    void leavesNothingBehindWithoutSpace();
    void refusesWhatCannotBeCopied_data();
    void refusesWhatCannotBeCopied();
    void saysThatAHistoryIsSound();
    void saysThatAHistoryIsNotSound_data();
    void saysThatAHistoryIsNotSound();
    void checksNothingThatIsNotThere();
};

namespace
{

Store opened(const QString &path)
{
    return std::move(Store::openOrCreate(path.toStdString()).value());
}

OpenConnection openConnection()
{
    OpenConnection open;
    open.bootId = "boot";
    open.interfaceIndex = 3;
    open.startUtc = 1717279200;
    open.updatedUtc = 1717279260;
    return open;
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
}

/// Adds connections two by two for as long as it lives.
class PairWriter
{
public:
    explicit PairWriter(const QString &path)
        : m_thread([this, path] { write(path); })
    {
    }
    ~PairWriter()
    {
        m_isEnding = true;
        m_thread.join();
    }

    int pairs() const { return m_pairs; }

private:
    void write(const QString &path)
    {
        Store store = opened(path);
        while (!m_isEnding) {
            std::vector<Connection> pair(2);
            pair[0].uploadedBytes = 2 * m_pairs + 1;
            pair[1].uploadedBytes = 2 * m_pairs + 2;
            if (store.addMissing(pair))
                ++m_pairs;
        }
    }

    std::atomic_bool m_isEnding = false;
    std::atomic_int m_pairs = 0;
    std::thread m_thread;
};

} // namespace

void ConnrecordUpkeepTest::copiesTheWholeHistory()
{
    const SampleHistory history;
    Store store = opened(history.path());
    QVERIFY(store.begin(openConnection()));
    QVERIFY(store.remove({1}));
    const QString folder = history.folder() + "/copies";
    const QString copy = folder + "/copy.db";
    QVERIFY(QDir().mkdir(folder));
    const ConnrecordRun result = history.run({"backup", copy});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(filesIn(folder), (QStringList{".", "..", "copy.db"}));
    QCOMPARE(QFile::permissions(copy) & ~(QFile::ReadUser | QFile::WriteUser),
             QFile::ReadOwner | QFile::WriteOwner);
    QCOMPARE(connrecord({"--store", copy, "list"}).output, history.run({"list"}).output);
    QCOMPARE(opened(copy).listOpen().value().size(), std::size_t(1));
}

void ConnrecordUpkeepTest::copiesOneMomentWhileOthersWrite()
{
    const SampleHistory history;
    const PairWriter writer(history.path());
    for (int i = 0; i < 8; ++i) {
        const int before = writer.pairs();
        QTRY_VERIFY(writer.pairs() > before);
        const QString copy = history.folder() + "/copy" + QString::number(i);
        QCOMPARE(history.run({"backup", copy}).exitCode, 0);
        const ConnrecordRun check = connrecord({"--store", copy, "check", "--json"});
        QCOMPARE(check.exitCode, 0);
        const int count = check.json().object().value("connections").toInt() - 4;
        QCOMPARE(count % 2, 0);
        QVERIFY(count / 2 > before && count / 2 <= writer.pairs() + 1);
    }
}

void ConnrecordUpkeepTest::replacesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("reason");

    const QByteArray isThere = "it is there already";
    const QByteArray isOfHistory = "it belongs to the history";
    QTest::newRow("a file") << "file" << isThere;
    QTest::newRow("a folder") << "folder" << isThere;
    QTest::newRow("a link to nothing") << "link" << isThere;
    QTest::newRow("the history") << "connections.db" << isOfHistory;
    QTest::newRow("a file of the history") << "connections.db-journal" << isOfHistory;
}

void ConnrecordUpkeepTest::replacesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, reason);
    const SampleHistory history;
    writeFile(history.folder() + "/file", "Dear diary");
    QVERIFY(QDir(history.folder()).mkdir("folder"));
    QVERIFY(QFile::link("nowhere", history.folder() + "/link"));
    const QStringList before = filesIn(history.folder());
    const ConnrecordRun result = history.run({"backup", history.folder() + '/' + name});
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.contains(name.toUtf8()) && result.error.contains(reason), result.error);
    QCOMPARE(filesIn(history.folder()), before);
    QCOMPARE(readFile(history.folder() + "/file"), QByteArray("Dear diary"));
    QCOMPARE(history.keys(), (QList<int>{1, 2, 3, 4}));
}

void ConnrecordUpkeepTest::leavesNothingBehindWithoutSpace()
{
    const SampleHistory history;
    const QString folder = history.folder() + "/copies";
    QVERIFY(QDir().mkdir(folder));
    const QString csv = history.folder() + "/many.csv";
    writeFile(csv, csvOf(3000));
    QCOMPARE(history.run({"import", "--format", "csv", csv}).exitCode, 0);
    const ConnrecordRun result = runProgram(
        "sh", {"-c", "trap '' XFSZ; ulimit -f 100; exec \"$0\" \"$@\"", connrecordProgram(),
               "--store", history.path(), "backup", folder + "/copy.db"});
    QCOMPARE(result.exitCode, 5);
    QVERIFY2(result.error.contains("A copy of the connection history"), result.error);
    QCOMPARE(filesIn(folder), (QStringList{".", ".."}));
}

void ConnrecordUpkeepTest::refusesWhatCannotBeCopied_data()
{
    QTest::addColumn<QString>("store");
    QTest::addColumn<QString>("copy");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("named");

    const QByteArray noHistory = "There is no history ";
    QTest::newRow("no history") << "no"
                                << "copy" << 3 << noHistory;
    QTest::newRow("an empty file") << "empty"
                                   << "copy" << 3 << noHistory;
    QTest::newRow("another file") << "diary"
                                  << "copy" << 3 << QByteArray("diary");
    QTest::newRow("no folder") << "connections.db"
                               << "no/copy" << 5 << QByteArray("no/copy");
    QTest::newRow("no file") << "connections.db"
                             << "-" << 2 << QByteArray("backup");
}

void ConnrecordUpkeepTest::refusesWhatCannotBeCopied()
{
    QFETCH(QString, store);
    QFETCH(QString, copy);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, named);
    const SampleHistory history;
    writeFile(history.folder() + "/empty", "");
    writeFile(history.folder() + "/diary", "Dear diary, this is no database.\n");
    const QStringList before = filesIn(history.folder());
    const ConnrecordRun result =
        runProgram("sh", {"-c", "cd \"$0\" && exec \"$@\"", history.folder(), connrecordProgram(),
                          "--store", store, "backup", copy});
    QCOMPARE(result.exitCode, exitCode);
    QVERIFY2(result.error.contains(named), result.error);
    QCOMPARE(filesIn(history.folder()), before);
}

void ConnrecordUpkeepTest::saysThatAHistoryIsSound()
{
    const SampleHistory history;
    QVERIFY(opened(history.path()).begin(openConnection()));
    const ConnrecordRun result = history.run({"check"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.output,
             "The history \"" + history.path().toUtf8() + "\" is sound: 4 connections, 1 open.\n");
    QCOMPARE(history.run({"check", "--json"}).json().object(),
             (QJsonObject{{"sound", true},
                          {"connections", 4},
                          {"open_connections", 1},
                          {"problems", QJsonArray()}}));
}

void ConnrecordUpkeepTest::saysThatAHistoryIsNotSound_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QByteArray>("problem");

    QTest::newRow("a value out of its range")
        << QByteArray("UPDATE connection SET uploaded_bytes = -5 WHERE key = 3")
        << QByteArray("Key 3: The number of bytes sent of the connection is -5");
    QTest::newRow("hours that do not add up")
        << QByteArray("INSERT INTO connection_hour VALUES (3, 1717192800, 0, 4, 39)")
        << QByteArray("Key 3: Its hours do not add up to its byte counts.");
    QTest::newRow("a page that nothing uses")
        << QByteArray("PRAGMA writable_schema = ON; CREATE TABLE other(a);"
                      "DELETE FROM sqlite_schema WHERE name = 'other'")
        << QByteArray("never used");
}

void ConnrecordUpkeepTest::saysThatAHistoryIsNotSound()
{
    QFETCH(QByteArray, change);
    QFETCH(QByteArray, problem);
    const SampleHistory history;
    {
        SQLite::Database database(history.path().toStdString(), SQLite::OPEN_READWRITE);
        database.exec("PRAGMA ignore_check_constraints = ON");
        database.exec(change.toStdString());
    }
    const ConnrecordRun result = history.run({"check"});
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.error.contains(problem), result.error);
    QVERIFY2(result.error.contains(history.path().toUtf8()), result.error);
    QCOMPARE(history.run({"check", "--json"}).json().object().value("sound"), QJsonValue(false));
}

void ConnrecordUpkeepTest::checksNothingThatIsNotThere()
{
    const ConnrecordRun result = connrecord({"--store", "/nonexistent/history.db", "check"});
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.error.contains("There is no history"), result.error);
}

QTEST_GUILESS_MAIN(ConnrecordUpkeepTest)

#include "tst_connrecordupkeep.moc"
