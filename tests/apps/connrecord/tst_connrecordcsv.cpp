// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"
#include "history/Store.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <limits>

using namespace history;

/// The program's import of CSV files into a real store.
class ConnrecordCsvTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void bringsBackEveryRecordThatWasExported();
    void addsNothingTheSecondTime();
    void addsOnlyWhatIsMissing();
    void readsStandardInput();
    void tellsTheWrongLineAndStoresNothing();
    void storesNothingOfAFileThatCannotBeReadToItsEnd_data();
    void storesNothingOfAFileThatCannotBeReadToItsEnd();
    void takesOneFileOnly();
    void takesABlankLastLine();
    void refusesWhatWouldFillTheMemory();
    void tellsAFileThatCannotBeRead_data();
    void tellsAFileThatCannotBeRead();
    void takesWhatFollowsTwoHyphensForAFile();
    void showsTheProgressOfALongImportOnATerminal();

private:
    ConnrecordRun import(const QByteArray &csv, const QStringList &options = {})
    {
        return connrecord(
            QStringList{"--store", m_store, "import", "--format", "csv", "-"} + options, csv);
    }
    QByteArray exported(const QString &store) const
    {
        return connrecord({"--store", store, "export"}).output;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_store;
};

void ConnrecordCsvTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_store = m_folder->filePath("connections.db");
}

void ConnrecordCsvTest::bringsBackEveryRecordThatWasExported()
{
    const QString original = m_folder->filePath("original.db");
    auto opened = Store::openOrCreate(original.toStdString());
    QVERIFY(bool(opened));
    std::vector<Connection> connections;
    for (const char *const profile : {"", "internet.example", "a,b", "\"a\"", "a\nb", "\r\n", " a ",
                                      "Z\xC3\xBCrich", "\xF0\x9F\x93\xB6",
                                      "\xEF\xBB\xBF"
                                      "mark",
                                      "\x1b[31mred", "=1+1", "-", "NULL"}) {
        Connection connection;
        connection.profile = profile;
        connection.startUtc = static_cast<std::int64_t>(connections.size());
        connection.endUtc = 4294967295;
        connection.connectedSeconds = 2147483647;
        connection.uploadedBytes = std::numeric_limits<std::int64_t>::max();
        connection.ending = "no, \"signal\"";
        connection.interfaceName = std::string(31, ',');
        connections.push_back(connection);
    }
    connections.push_back(connections.back());
    QVERIFY(bool(opened.value().addMissing(connections)));

    const QByteArray csv = exported(original);
    QCOMPARE(import(csv).exitCode, 0);
    const auto copy = Store::openForReading(m_store.toStdString()).value().list().value();
    QCOMPARE(copy.size(), connections.size());
    for (std::size_t i = 0; i < copy.size(); ++i) {
        QCOMPARE(copy[i].profile, connections[i].profile);
        QCOMPARE(copy[i].startUtc, connections[i].startUtc);
        QCOMPARE(copy[i].endUtc, connections[i].endUtc);
        QCOMPARE(copy[i].connectedSeconds, connections[i].connectedSeconds);
        QCOMPARE(copy[i].uploadedBytes, connections[i].uploadedBytes);
        QCOMPARE(copy[i].downloadedBytes, connections[i].downloadedBytes);
        QCOMPARE(copy[i].ending, connections[i].ending);
        QCOMPARE(copy[i].interfaceName, connections[i].interfaceName);
    }
    QCOMPARE(exported(m_store), csv);
}

void ConnrecordCsvTest::addsNothingTheSecondTime()
{
    const QByteArray csv = csvOf(3) + csvOf(3).mid(csvOf(0).size()); // each of them twice
    const ConnrecordRun first = import(csv);
    QCOMPARE(first.exitCode, 0);
    QCOMPARE(first.output, QByteArray("Connections read: 6\nAdded: 6\nAlready there: 0\n"));
    QCOMPARE(first.error, QByteArray());
    const QByteArray before = exported(m_store);

    const ConnrecordRun second = import(csv);
    QCOMPARE(second.exitCode, 0);
    QCOMPARE(second.output, QByteArray("Connections read: 6\nAdded: 0\nAlready there: 6\n"));
    QCOMPARE(exported(m_store), before);
}

void ConnrecordCsvTest::addsOnlyWhatIsMissing()
{
    import(csvOf(2));
    const ConnrecordRun result = import(csvOf(5), {"--json"});
    QCOMPARE(result.json().object(), (QJsonObject{{"read", 5},
                                                  {"added", 3},
                                                  {"already_there", 2},
                                                  {"completed", 0},
                                                  {"unusable", QJsonArray()}}));
}

void ConnrecordCsvTest::readsStandardInput()
{
    const QString path = m_folder->filePath("history.csv");
    writeFile(path, csvOf(2));
    QCOMPARE(connrecord({"--store", m_store, "import", "--format", "csv", path}).exitCode, 0);
    QCOMPARE(exported(m_store), csvOf(2));
    QVERIFY(import(csvOf(2)).output.contains("Already there: 2"));
}

void ConnrecordCsvTest::tellsTheWrongLineAndStoresNothing()
{
    const QString path = m_folder->filePath("history.csv");
    writeFile(path, csvOf(2) + "x,2024-05-31T18:30:00Z,2024-05-31T19:30:00Z,1,-2,3,normal,,,,,,\n");
    const ConnrecordRun result =
        connrecord({"--store", m_store, "import", "--format", "csv", path});
    QCOMPARE(result.exitCode, 4);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.error, "connrecord: \"" + path.toUtf8() +
                               "\", line 4, column uploaded_bytes: \"-2\" is negative. "
                               "Nothing was imported.\n");
    QCOMPARE(exported(m_store), csvOf(0));
}

void ConnrecordCsvTest::storesNothingOfAFileThatCannotBeReadToItsEnd_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("readable");

    QTest::newRow("it fails between two lines") << "csv" << csvOf(3);
    QTest::newRow("it fails within a line") << "csv" << csvOf(3) + "internet.example,2024-05-31T1";
    QTest::newRow("it fails within quotation marks") << "csv" << csvOf(3) + "\"internet.";
    QTest::newRow("it fails within JSON") << "json" << QByteArray("[{\"profile\":\"internet.");
    QTest::newRow("it fails within a line of JSON") << "jsonl" << QByteArray("{\"profile\":");
}

void ConnrecordCsvTest::storesNothingOfAFileThatCannotBeReadToItsEnd()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, readable);
    // Behind what was written at its other end, a terminal whose other end is closed
    // cannot be read.
    int failing = -1;
    int otherEnd = -1;
    QCOMPARE(openpty(&failing, &otherEnd, nullptr, nullptr, nullptr), 0);
    termios raw = {};
    cfmakeraw(&raw);
    QCOMPARE(tcsetattr(otherEnd, TCSANOW, &raw), 0);
    QCOMPARE(::write(otherEnd, readable.constData(), static_cast<std::size_t>(readable.size())),
             static_cast<ssize_t>(readable.size()));
    QCOMPARE(::close(otherEnd), 0);
    const ConnrecordRun result = runProgram(
        "sh", {"-c", "\"$0\" --store \"$1\" import --format \"$2\" - <&" + QString::number(failing),
               connrecordProgram(), m_store, format});
    QCOMPARE(::close(failing), 0);
    QCOMPARE(result.exitCode, 4);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.error.contains("standard input cannot be read to its end"), result.error);
    QCOMPARE(exported(m_store), csvOf(0));
}

void ConnrecordCsvTest::takesOneFileOnly()
{
    const ConnrecordRun result =
        connrecord({"--store", m_store, "import", "--format", "csv", "a", "b"});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.error, QByteArray("connrecord: With --format csv, import takes one FILE.\n"));
}

void ConnrecordCsvTest::takesABlankLastLine()
{
    QVERIFY(import(csvOf(2) + "\r\n").output.contains("Added: 2"));
}

void ConnrecordCsvTest::refusesWhatWouldFillTheMemory()
{
    const ConnrecordRun result = import(csvOf(2) + QByteArray(20 * 1000 * 1000, ','));
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.contains("line 4") && result.error.contains("4194304 bytes"),
             result.error);
    QCOMPARE(exported(m_store), csvOf(0));
}

void ConnrecordCsvTest::tellsAFileThatCannotBeRead_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("it is not there") << "/missing/history.csv";
    QTest::newRow("a folder") << "/";
    QTest::newRow("a path below a file") << "/dev/null/history.csv";
}

void ConnrecordCsvTest::tellsAFileThatCannotBeRead()
{
    QFETCH(QString, path);
    for (const char *const format : {"csv", "pppd"}) {
        const ConnrecordRun result =
            connrecord({"--store", m_store, "import", "--format", format, path});
        QCOMPARE(result.exitCode, 4);
        QVERIFY2(result.error.startsWith("connrecord: \"" + path.toUtf8() + "\" cannot be read"),
                 result.error);
        QVERIFY(!QFile::exists(m_store));
    }
}

void ConnrecordCsvTest::takesWhatFollowsTwoHyphensForAFile()
{
    writeFile(m_folder->filePath("--json"), csvOf(2));
    const ConnrecordRun result =
        runProgram("sh", {"-c", "cd \"$1\" && \"$0\" --store \"$2\" import --format csv -- --json",
                          connrecordProgram(), m_folder->path(), m_store});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.output, QByteArray("Connections read: 2\nAdded: 2\nAlready there: 0\n"));
}

void ConnrecordCsvTest::showsTheProgressOfALongImportOnATerminal()
{
    const QString path = m_folder->filePath("history.csv");
    const auto shown = [&](int count, const QString &redirection) {
        writeFile(path, csvOf(count));
        const QString command = QString("'%1' --store '%2' import --format csv '%3' %4")
                                    .arg(connrecordProgram(), m_store, path, redirection);
        return onTerminal(command);
    };
    const ConnrecordRun small = shown(10, {});
    QCOMPARE(small.exitCode, 0);
    QVERIFY2(!small.output.contains('%'), small.output);

    const ConnrecordRun large = shown(60000, {});
    QCOMPARE(large.exitCode, 0);
    QVERIFY2(large.output.contains("Reading \"" + path.toUtf8() + "\": "), large.output);
    QVERIFY2(large.output.contains("Storing: 33 %"), large.output);
    QVERIFY2(large.output.contains("Added: 59990"), large.output);

    const ConnrecordRun redirected = shown(40000, "2>/dev/null");
    QCOMPARE(redirected.exitCode, 0);
    QVERIFY2(!redirected.output.contains('%'), redirected.output);
}

QTEST_GUILESS_MAIN(ConnrecordCsvTest)

#include "tst_connrecordcsv.moc"
