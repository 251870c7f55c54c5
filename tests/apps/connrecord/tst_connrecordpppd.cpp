// SPDX-License-Identifier: MIT
#include "ConnrecordRun.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

/// The program's import of system logs into a real store. Each log in the
/// folder data/ has beside it the history that it makes.
class ConnrecordPppdTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void importsALog_data();
    void importsALog();
    void givesTheProfileThatTheLogDoesNotShow();
    void countsAConnectionOnceWhateverItsProfile();
    void completesWhatARotatedLogHadLost();
    void keepsTwoModemsOfOneSecondApart();
    void takesTheYearFromTheOrderOfTheLines();
    void takesTheYearOfTheLastLine();
    void saysThatTheYearIsAGuess();
    void refusesAYearThatCannotBe_data();
    void refusesAYearThatCannotBe();
    void saysWhatItCannotUse();
    void saysWhatItCannotUseAsJson();
    void readsStandardInput();
    void refusesAFileWithoutAnyConnection_data();
    void refusesAFileWithoutAnyConnection();
    void readsALongLog();
    void readsRotatedLogsAsOne();
    void readsALineOfSeveralFilesOnce();
    void readsTheNewestLineFirst();
    void readsTheJournal_data();
    void readsTheJournal();
    void survivesABrokenJournal();
    void readsCompressedLogs_data();
    void readsCompressedLogs();
    void refusesABrokenArchive_data();
    void refusesABrokenArchive();
    void keepsLittleOfALargeArchiveInMemory();
    void refusesMoreMessagesThanFitIntoMemory();
    void takesOneCsvFileOnly();

private:
    /// A copy of the log, last changed at this local time.
    QString logFile(const QString &name, const QString &changed);
    QString writtenLog(const QByteArray &contents, const QString &changed,
                       const QString &name = "messages");
    ConnrecordRun import(const QString &path, const QStringList &options = {},
                         const QByteArray &input = {})
    {
        return connrecord(
            QStringList{"--store", m_store, "import", "--format", "pppd", path} + options, input);
    }
    QByteArray exported() const { return connrecord({"--store", m_store, "export"}).output; }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_store;
};

namespace
{

QString dataFile(const QString &name)
{
    return QDir(CONNRECORD_TEST_DATA).filePath(name);
}

/// One connection of a minute that ends at that "MMM dd hh:mm:ss".
QByteArray shortConnection(const QByteArray &end)
{
    return end + " gw pppd[7]: Connect time 1.0 minutes.\n" + end +
           " gw pppd[7]: Sent 1 bytes, received 2 bytes.\n";
}

struct JournalMessage {
    int second; ///< since 2023-11-10 16:02:00 UTC
    const char *process;
    const char *message;
};

QByteArray journalTime(const JournalMessage &entry)
{
    return QByteArray::number(qint64(1699632120) + entry.second);
}

QByteArray journalAsJson(const JournalMessage &entry)
{
    // The message as bytes, as journalctl writes what is not all text.
    QByteArrayList bytes;
    for (const char byte : QByteArray(entry.message))
        bytes << QByteArray::number(int(byte));
    return "{\"__REALTIME_TIMESTAMP\":\"1\",\"_SOURCE_REALTIME_TIMESTAMP\":\"" +
           journalTime(entry) +
           "123456\",\"_HOSTNAME\":\"gw\",\"_PID\":\"7\",\"SYSLOG_IDENTIFIER\":\"" + entry.process +
           "\",\"MESSAGE\":[" + bytes.join(',') + "]}\n";
}

QByteArray journalAsExport(const JournalMessage &entry)
{
    const QByteArray message = entry.message;
    QByteArray length(8, '\0');
    length[0] = char(message.size());
    return QByteArray("__CURSOR=s\n__REALTIME_TIMESTAMP=") + journalTime(entry) +
           "123456\n_HOSTNAME=gw\nNOTE\n" + QByteArray("\x03\0\0\0\0\0\0\0\n\n\n\n", 12) +
           "_COMM=" + entry.process + "\nSYSLOG_PID=7\nMESSAGE\n" + length + message + "\n\n";
}

QByteArray journalAsShortUnix(const JournalMessage &entry)
{
    return journalTime(entry) + ".123456 gw " + entry.process + "[7]: " + entry.message + '\n';
}

QByteArray journal(QByteArray (*write)(const JournalMessage &), bool isReversed)
{
    QByteArrayList entries;
    for (const JournalMessage &entry :
         {JournalMessage{5, "chat", "send (AT+CGDCONT=1,\"IP\",\"internet.example\"^M)"},
          JournalMessage{9, "pppd", "Connect: ppp0 <--> /dev/ttyUSB0"},
          JournalMessage{10, "pppd", "local  IP address 198.51.100.7"},
          JournalMessage{68, "pppd", "Modem hangup"},
          JournalMessage{69, "pppd", "Connect time 1.0 minutes."},
          JournalMessage{69, "pppd", "Sent 7 bytes, received 8 bytes."}})
        entries << write(entry);
    if (isReversed)
        std::reverse(entries.begin(), entries.end());
    return entries.join();
}

} // namespace

void ConnrecordPppdTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_store = m_folder->filePath("connections.db");
}

QString ConnrecordPppdTest::logFile(const QString &name, const QString &changed)
{
    return writtenLog(readFile(dataFile(name)), changed, name);
}

QString ConnrecordPppdTest::writtenLog(const QByteArray &contents, const QString &changed,
                                       const QString &name)
{
    const QString path = m_folder->filePath(name);
    writeFile(path, contents);
    QFile file(path);
    const bool isSet = file.open(QIODevice::ReadWrite) &&
                       file.setFileTime(QDateTime::fromString(changed, Qt::ISODate),
                                        QFileDevice::FileModificationTime);
    if (!isSet)
        qFatal("the time of %s cannot be set", qPrintable(path));
    return path;
}

void ConnrecordPppdTest::importsALog_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<int>("count");

    QTest::newRow("two modems at once, every line twice, host and facility")
        << "host-facility"
        << "2023-11-10T18:00:00" << 4;
    QTest::newRow("over the end of a year, host alone") << "host"
                                                        << "2024-01-02T00:00:00" << 3;
    QTest::newRow("ISO time in UTC with host and facility") << "iso-utc"
                                                            << "2023-08-22T00:00:00" << 2;
    QTest::newRow("ISO time with a fraction, APN from pppd") << "iso-fraction"
                                                             << "2023-08-11T00:00:00" << 2;
    QTest::newRow("priorities, dialling that fails") << "priority"
                                                     << "2022-05-20T23:00:00" << 2;
    QTest::newRow("weekday and year, lines end with carriage returns")
        << "weekday-year"
        << "2023-06-18T00:00:00" << 2;
    QTest::newRow("no process") << "no-process"
                                << "2025-09-10T00:00:00" << 2;
}

void ConnrecordPppdTest::importsALog()
{
    QFETCH(QString, name);
    QFETCH(QString, changed);
    QFETCH(int, count);
    const QString log = logFile(name + ".log", changed);

    const QJsonObject first = import(log, {"--json"}).json().object();
    QCOMPARE(exported(), readFile(dataFile(name + ".csv")));
    QCOMPARE(first, (QJsonObject{{"read", count},
                                 {"added", count},
                                 {"already_there", 0},
                                 {"completed", 0},
                                 {"unusable", QJsonArray()}}));

    const ConnrecordRun second = import(log);
    QCOMPARE(second.exitCode, 0);
    QCOMPARE(second.output, "Connections read: " + QByteArray::number(count) +
                                "\nAdded: 0\nAlready there: " + QByteArray::number(count) + '\n');
    QCOMPARE(exported(), readFile(dataFile(name + ".csv")));
}

void ConnrecordPppdTest::givesTheProfileThatTheLogDoesNotShow()
{
    const QString log = logFile("no-process.log", "2025-09-10T00:00:00");
    QCOMPARE(import(log, {"--profile", "Zürich, Büro"}).exitCode, 0);
    QVERIFY2(exported().contains("\n\"Zürich, Büro\",2025-09-08T"), exported());
}

void ConnrecordPppdTest::countsAConnectionOnceWhateverItsProfile()
{
    const QString log = logFile("no-process.log", "2025-09-10T00:00:00");
    QCOMPARE(import(log, {"--profile", "one"}).exitCode, 0);
    const QByteArray before = exported();
    QCOMPARE(import(log, {"--profile", "other"}).output,
             QByteArray("Connections read: 2\nAdded: 0\nAlready there: 2\n"));
    QCOMPARE(exported(), before);
}

void ConnrecordPppdTest::completesWhatARotatedLogHadLost()
{
    const QByteArray whole = readFile(dataFile("weekday-year.log"));
    const QByteArray cut = whole.mid(whole.indexOf("Sat Jun 17 17:29:17"));
    QCOMPARE(import("-", {"--profile", "given"}, cut).exitCode, 0);
    QVERIFY2(exported().contains("given,2023-06-17T15:20:17Z,2023-06-17T15:29:17Z,540,55,66,"),
             exported());
    QCOMPARE(
        import("-", {"--profile", "given"}, whole).output,
        QByteArray("Connections read: 2\nAdded: 0\nAlready there: 2\nOf these, completed: 2\n"));
    QCOMPARE(exported(), readFile(dataFile("weekday-year.csv")));
    QCOMPARE(import("-", {"--json"}, cut).json().object().value("completed").toInt(), 0);
    QCOMPARE(exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordPppdTest::keepsTwoModemsOfOneSecondApart()
{
    QByteArray log;
    for (const char *const line : {"10:00:00 gw pppd[1]: Connect: ppp0 <--> /dev/a",
                                   "10:00:00 gw pppd[2]: Connect: ppp1 <--> /dev/b",
                                   "10:01:00 gw pppd[1]: Connect time 1.0 minutes.",
                                   "10:01:00 gw pppd[2]: Connect time 1.0 minutes.",
                                   "10:01:00 gw pppd[1]: Sent 0 bytes, received 0 bytes.",
                                   "10:01:00 gw pppd[2]: Sent 0 bytes, received 0 bytes."})
        log += QByteArray("2024-05-31T") + line + '\n';
    for (const int added : {2, 0})
        QCOMPARE(import("-", {"--json"}, log).json().object().value("added").toInt(), added);
}

void ConnrecordPppdTest::takesTheYearFromTheOrderOfTheLines()
{
    const QByteArray log = shortConnection("Dec 30 12:00:00") + shortConnection("Mar  3 12:00:00") +
                           shortConnection("Dec 31 12:00:00") + shortConnection("Mar  4 12:00:01") +
                           "Mar  4 12:00:00 gw cron[3]: a second out of order\n";
    const ConnrecordRun result = import(writtenLog(log, "2023-03-04T12:00:00"));
    QCOMPARE(result.error, QByteArray());
    const QByteArray csv = exported();
    for (const char *const end : {"2021-12-30", "2022-03-03", "2022-12-31", "2023-03-04"})
        QVERIFY2(csv.contains(QByteArray(",") + end + 'T'), csv);
}

void ConnrecordPppdTest::takesTheYearOfTheLastLine()
{
    const QByteArray log = shortConnection("Dec 30 12:00:00") + shortConnection("Mar  3 12:00:00");
    const ConnrecordRun result = import("-", {"--year", "2011"}, log);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QVERIFY2(exported().contains(",2010-12-30T11:00:00Z,"), exported());
    QVERIFY2(exported().contains(",2011-03-03T11:00:00Z,"), exported());
}

void ConnrecordPppdTest::saysThatTheYearIsAGuess()
{
    const QString path = writtenLog(shortConnection("Nov 10 12:00:00"), "2023-12-24T00:00:00");
    const ConnrecordRun result = import(path);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error,
             "connrecord: \"" + path.toUtf8() +
                 "\" does not show its years; its last line was taken to be of 2023. If that is "
                 "wrong, remove what was added and give the year with --year.\n");
    QVERIFY2(exported().contains(",2023-11-10T11:00:00Z,"), exported());
}

void ConnrecordPppdTest::refusesAYearThatCannotBe_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("year");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QByteArray>("reason");

    const QByteArray leapDay = shortConnection("Feb 29 12:00:00");
    QTest::newRow("no number") << leapDay << "last" << 2 << QByteArray("--year");
    QTest::newRow("before all times") << leapDay << "1969" << 2 << QByteArray("--year");
    QTest::newRow("29 February of another year")
        << leapDay << "2023" << 1 << QByteArray("For --year, 2023 cannot be: standard input has");
    QTest::newRow("another year in the last line")
        << readFile(dataFile("weekday-year.log")) << "2022" << 1
        << QByteArray("For --year, 2022 is wrong: the last line of standard input shows 2023.");
}

void ConnrecordPppdTest::refusesAYearThatCannotBe()
{
    QFETCH(QByteArray, log);
    QFETCH(QString, year);
    QFETCH(QByteArray, reason);
    const ConnrecordRun result = import("-", {"--year", year}, log);
    QTEST(result.exitCode, "exitCode");
    QVERIFY2(result.error.contains(reason), result.error);
    QVERIFY(!QFile::exists(m_store));
}

void ConnrecordPppdTest::saysWhatItCannotUse()
{
    const ConnrecordRun result =
        import(logFile("incomplete.log", "2023-11-10T18:00:00"), {"--profile", "p"});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(
        result.output,
        QByteArray(
            "Connections read: 1\n"
            "Added: 1\n"
            "Already there: 0\n"
            "Not used, a connection does not end in the log: 2; first in line 1: "
            "Nov 10 09:00:00 gw pppd[300]: Connect: ppp0 <--> /dev/ttyUSB0\n"
            "Not used, a connect time has no byte counts: 1; first in line 3: "
            "Nov 10 09:20:00 gw pppd[300]: Connect time 4.0 minutes.\n"
            "Not used, byte counts have no connect time: 1; first in line 4: "
            "Nov 10 09:30:00 gw pppd[301]: Sent 1 bytes, received 2 bytes.\n"
            "Not used, the time stamp cannot be read: 1; first in line 5: "
            "Nov 31 09:40:00 gw pppd[302]: Connect time 1.0 minutes.\n"
            "Not used, a number or time is out of range: 1; first in line 9: "
            "Nov 10 09:50:00 gw pppd[303]: Sent 9223372036854775808 bytes, received 2 bytes.\n"));
}

void ConnrecordPppdTest::saysWhatItCannotUseAsJson()
{
    const QString log = logFile("incomplete.log", "2023-11-10T18:00:00");
    const QJsonArray unusable = import(log, {"--json"}).json().object().value("unusable").toArray();
    QCOMPARE(unusable.size(), 5);
    QCOMPARE(unusable[0].toObject(),
             (QJsonObject{
                 {"reason", "a connection does not end in the log"},
                 {"count", 2},
                 {"first_file", log},
                 {"first_line", 1},
                 {"first_text", "Nov 10 09:00:00 gw pppd[300]: Connect: ppp0 <--> /dev/ttyUSB0"}}));
}

void ConnrecordPppdTest::readsStandardInput()
{
    QCOMPARE(import("-", {}, readFile(dataFile("weekday-year.log"))).exitCode, 0);
    QCOMPARE(exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordPppdTest::refusesAFileWithoutAnyConnection_data()
{
    QTest::addColumn<QByteArray>("contents");

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("a log of other programs") << QByteArray("Nov 10 17:02:09 gw cron[3]: run\n");
    QTest::newRow("chat alone") << QByteArray(
        "Nov 10 17:02:09 gw chat[490]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n");
    QTest::newRow("binary contents") << QByteArray(100000, '\0') + QByteArray(100000, '\xFF');
}

void ConnrecordPppdTest::refusesAFileWithoutAnyConnection()
{
    QFETCH(QByteArray, contents);
    const ConnrecordRun result = import("-", {}, contents);
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.startsWith("connrecord: standard input holds no line"), result.error);
    QVERIFY(!QFile::exists(m_store));
}

void ConnrecordPppdTest::readsALongLog()
{
    QByteArray log;
    for (int i = 0; i < 20000; ++i)
        log +=
            readFile(dataFile("weekday-year.log")).replace("3844", QByteArray::number(10000 + i));
    const QJsonObject report = import("-", {"--json"}, log).json().object();
    QCOMPARE(report.value("read").toInt(), 40000);
    QCOMPARE(report.value("added").toInt(), 40000);
}

void ConnrecordPppdTest::readsRotatedLogsAsOne()
{
    const QByteArray whole = readFile(dataFile("host.log"));
    const auto cut = whole.indexOf("Jan  1 00:20:12");
    // The order of the arguments and the times of the files say nothing.
    const QString newer = writtenLog(whole.mid(cut), "2024-01-02T00:00:00", "a");
    const QString older = writtenLog(whole.left(cut), "2024-01-03T00:00:00", "b");
    const ConnrecordRun result = import(newer, {older});
    QCOMPARE(result.output, QByteArray("Connections read: 3\nAdded: 3\nAlready there: 0\n"));
    QCOMPARE(exported(), readFile(dataFile("host.csv")));
}

void ConnrecordPppdTest::readsALineOfSeveralFilesOnce()
{
    const QByteArray whole = readFile(dataFile("weekday-year.log"));
    const QString all = writtenLog(whole, "2023-06-18T00:00:00", "all");
    const QString part =
        writtenLog(whole.mid(whole.indexOf("Sat Jun 17 17:29:17")), "2023-06-18T00:00:00", "part");
    const QString start = writtenLog(whole.left(whole.indexOf("Sat Jun 17 17:30:00")),
                                     "2023-06-18T00:00:00", "start");
    const QJsonObject report = import(part, {all, start, "--json"}).json().object();
    QCOMPARE(report.value("read").toInt(), 2);
    QCOMPARE(report.value("unusable").toArray(), QJsonArray());
    QCOMPARE(exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordPppdTest::readsTheNewestLineFirst()
{
    QByteArrayList lines = readFile(dataFile("host.log")).split('\n');
    lines.removeAll(QByteArray());
    std::reverse(lines.begin(), lines.end());
    QCOMPARE(import(writtenLog(lines.join('\n') + '\n', "2024-01-02T00:00:00")).exitCode, 0);
    QCOMPARE(exported(), readFile(dataFile("host.csv")));
}

void ConnrecordPppdTest::readsTheJournal_data()
{
    QTest::addColumn<QByteArray>("log");

    for (const bool isReversed : {false, true}) {
        const char *const order = isReversed ? ", the newest first" : "";
        QTest::addRow("json%s", order) << journal(journalAsJson, isReversed);
        QTest::addRow("export%s", order) << journal(journalAsExport, isReversed);
        QTest::addRow("short-unix%s", order) << journal(journalAsShortUnix, isReversed);
    }
}

void ConnrecordPppdTest::readsTheJournal()
{
    QFETCH(QByteArray, log);
    QCOMPARE(import("-", {}, log).exitCode, 0);
    QCOMPARE(exported(),
             QByteArray("profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,"
                        "ending,interface\ninternet.example,2023-11-10T16:02:10Z,"
                        "2023-11-10T16:03:09Z,60,7,8,modem hangup,ppp0\n"));
}

void ConnrecordPppdTest::survivesABrokenJournal()
{
    const QByteArray whole = journal(journalAsExport, false);
    for (int length = 0; length < whole.size(); length += 41)
        QVERIFY(import("-", {}, whole.left(length)).exitCode != -1);
    // A field that says it is longer than all memory.
    QCOMPARE(import("-", {}, "__CURSOR=a\nMESSAGE\n" + QByteArray(8, '\xFF') + "x\n").exitCode, 4);
}

void ConnrecordPppdTest::readsCompressedLogs_data()
{
    QTest::addColumn<QString>("program");

    for (const char *const program : {"gzip", "xz", "zstd", "bzip2"})
        QTest::newRow(program) << program;
}

void ConnrecordPppdTest::readsCompressedLogs()
{
    QFETCH(QString, program);
    const QByteArray packed =
        runProgram(program, {"-c"}, readFile(dataFile("weekday-year.log"))).output;
    QVERIFY(!packed.isEmpty());
    QCOMPARE(import(writtenLog(packed + packed, "2023-06-18T00:00:00", "named.log")).exitCode, 0);
    const QByteArray twice = exported();
    QCOMPARE(twice.count('\n'), 5);
    QCOMPARE(import("-", {"--json"}, packed).json().object().value("added").toInt(), 0);
    QCOMPARE(exported(), twice);
}

void ConnrecordPppdTest::refusesABrokenArchive_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("isCut");

    for (const char *const program : {"gzip", "xz", "zstd", "bzip2"}) {
        QTest::addRow("%s, truncated", program) << program << true;
        QTest::addRow("%s, one bit of the sum", program) << program << false;
    }
}

void ConnrecordPppdTest::refusesABrokenArchive()
{
    QFETCH(QString, program);
    QFETCH(bool, isCut);
    QByteArray packed = runProgram(program, {"-c"}, readFile(dataFile("weekday-year.log"))).output;
    if (isCut)
        packed.chop(2);
    else
        packed[packed.size() - 6] = char(packed.at(packed.size() - 6) ^ 1);
    const ConnrecordRun result = import("-", {}, packed);
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.startsWith("connrecord: standard input cannot be read to its end: ") &&
                 result.error.endsWith(". Nothing was imported.\n"),
             result.error);
    QVERIFY(!QFile::exists(m_store));
}

void ConnrecordPppdTest::keepsLittleOfALargeArchiveInMemory()
{
#ifdef SANITIZED
    QSKIP("the sanitizers need more memory than the limit leaves");
#endif
    // 256 MiB in one line, then a log.
    QByteArray log = QByteArray(256 << 20, 'x') + '\n' + readFile(dataFile("weekday-year.log"));
    const QString path =
        writtenLog(runProgram("zstd", {"-c"}, log).output, "2023-06-18T00:00:00", "large");
    log.clear();
    const ConnrecordRun result =
        runProgram("sh", {"-c", "ulimit -v 200000; exec \"$0\" \"$@\"", connrecordProgram(),
                          "--store", m_store, "import", "--format", "pppd", path});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordPppdTest::refusesMoreMessagesThanFitIntoMemory()
{
#ifdef SANITIZED
    QSKIP("the sanitizers need more memory than the limit leaves");
#endif
    // Few bytes in an archive, and each of the two would be little enough.
    const QByteArray messages = QByteArray("Exit.\n").repeated(500001);
    const QString path = writtenLog(runProgram("zstd", {"-c"}, messages).output,
                                    "2023-06-18T00:00:00", "messages.zst");
    const ConnrecordRun result =
        runProgram("sh", {"-c", "ulimit -v 2000000; exec \"$0\" \"$@\"", connrecordProgram(),
                          "--store", m_store, "import", "--format", "pppd", path, path});
    QCOMPARE(result.exitCode, 4);
    QCOMPARE(result.error,
             "connrecord: \"" + path.toUtf8() +
                 "\" is too much: together, more than 1000000 messages of pppd and jumps of a "
                 "clock cannot be read at once. Nothing was imported; import fewer or smaller "
                 "files.\n");
    QVERIFY(!QFile::exists(m_store));
}

void ConnrecordPppdTest::takesOneCsvFileOnly()
{
    const ConnrecordRun result =
        connrecord({"--store", m_store, "import", "--format", "csv", "a", "b"});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.error, QByteArray("connrecord: With --format csv, import takes one FILE.\n"));
}

QTEST_GUILESS_MAIN(ConnrecordPppdTest)

#include "tst_connrecordpppd.moc"
