// SPDX-License-Identifier: MIT
#include "PppdImport.h"
#include "tests/Many.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

/// The files in which the program finds system logs: rotated, reversed, of the
/// journal, compressed, broken and too large.
class ConnrecordLogFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_log.reset(new PppdImport); }
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

private:
    QScopedPointer<PppdImport> m_log;
};

namespace
{

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

void ConnrecordLogFilesTest::readsStandardInput()
{
    QCOMPARE(m_log->import("-", {}, readFile(dataFile("weekday-year.log"))).exitCode, 0);
    QCOMPARE(m_log->exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordLogFilesTest::refusesAFileWithoutAnyConnection_data()
{
    QTest::addColumn<QByteArray>("contents");

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("a log of other programs") << QByteArray("Nov 10 17:02:09 gw cron[3]: run\n");
    QTest::newRow("chat alone") << QByteArray(
        "Nov 10 17:02:09 gw chat[490]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n");
    QTest::newRow("binary contents") << QByteArray(100000, '\0') + QByteArray(100000, '\xFF');
}

void ConnrecordLogFilesTest::refusesAFileWithoutAnyConnection()
{
    QFETCH(QByteArray, contents);
    const ConnrecordRun result = m_log->import("-", {}, contents);
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.startsWith("connrecord: standard input holds no line"), result.error);
    QVERIFY(!QFile::exists(m_log->store()));
}

void ConnrecordLogFilesTest::readsALongLog()
{
    constexpr int count = many(20000);
    QByteArray log;
    for (int i = 0; i < count; ++i)
        log +=
            readFile(dataFile("weekday-year.log")).replace("3844", QByteArray::number(10000 + i));
    const QJsonObject report = m_log->import("-", {"--json"}, log).json().object();
    QCOMPARE(report.value("read").toInt(), 2 * count);
    QCOMPARE(report.value("added").toInt(), 2 * count);
}

void ConnrecordLogFilesTest::readsRotatedLogsAsOne()
{
    const QByteArray whole = readFile(dataFile("host.log"));
    const auto cut = whole.indexOf("Jan  1 00:20:12");
    // The order of the arguments and the times of the files say nothing.
    const QString newer = m_log->writtenLog(whole.mid(cut), "2024-01-02T00:00:00", "a");
    const QString older = m_log->writtenLog(whole.left(cut), "2024-01-03T00:00:00", "b");
    const ConnrecordRun result = m_log->import(newer, {older});
    QCOMPARE(result.output, QByteArray("Connections read: 3\nAdded: 3\nAlready there: 0\n"));
    QCOMPARE(m_log->exported(), readFile(dataFile("host.csv")));
}

void ConnrecordLogFilesTest::readsALineOfSeveralFilesOnce()
{
    const QByteArray whole = readFile(dataFile("weekday-year.log"));
    const QString all = m_log->writtenLog(whole, "2023-06-18T00:00:00", "all");
    const QString part = m_log->writtenLog(whole.mid(whole.indexOf("Sat Jun 17 17:29:17")),
                                           "2023-06-18T00:00:00", "part");
    const QString start = m_log->writtenLog(whole.left(whole.indexOf("Sat Jun 17 17:30:00")),
                                            "2023-06-18T00:00:00", "start");
    const QJsonObject report = m_log->import(part, {all, start, "--json"}).json().object();
    QCOMPARE(report.value("read").toInt(), 2);
    QCOMPARE(report.value("unusable").toArray(), QJsonArray());
    QCOMPARE(m_log->exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordLogFilesTest::readsTheNewestLineFirst()
{
    QByteArrayList lines = readFile(dataFile("host.log")).split('\n');
    lines.removeAll(QByteArray());
    std::reverse(lines.begin(), lines.end());
    QCOMPARE(
        m_log->import(m_log->writtenLog(lines.join('\n') + '\n', "2024-01-02T00:00:00")).exitCode,
        0);
    QCOMPARE(m_log->exported(), readFile(dataFile("host.csv")));
}

void ConnrecordLogFilesTest::readsTheJournal_data()
{
    QTest::addColumn<QByteArray>("log");

    for (const bool isReversed : {false, true}) {
        const char *const order = isReversed ? ", the newest first" : "";
        QTest::addRow("json%s", order) << journal(journalAsJson, isReversed);
        QTest::addRow("export%s", order) << journal(journalAsExport, isReversed);
        QTest::addRow("short-unix%s", order) << journal(journalAsShortUnix, isReversed);
    }
}

void ConnrecordLogFilesTest::readsTheJournal()
{
    QFETCH(QByteArray, log);
    QCOMPARE(m_log->import("-", {}, log).exitCode, 0);
    QCOMPARE(m_log->exported(),
             QByteArray("profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,"
                        "ending,interface,operator,operator_code,sim,roaming,technology\ninternet."
                        "example,2023-11-10T16:02:10Z,"
                        "2023-11-10T16:03:09Z,60,7,8,modem hangup,ppp0,,,,,\n"));
}

void ConnrecordLogFilesTest::survivesABrokenJournal()
{
    const QByteArray whole = journal(journalAsExport, false);
    for (int length = 0; length < whole.size(); length += 41)
        QVERIFY(m_log->import("-", {}, whole.left(length)).exitCode != -1);
    // A field that says it is longer than all memory.
    QCOMPARE(
        m_log->import("-", {}, "__CURSOR=a\nMESSAGE\n" + QByteArray(8, '\xFF') + "x\n").exitCode,
        4);
}

void ConnrecordLogFilesTest::readsCompressedLogs_data()
{
    QTest::addColumn<QString>("program");

    for (const char *const program : {"gzip", "xz", "zstd", "bzip2"})
        QTest::newRow(program) << program;
}

void ConnrecordLogFilesTest::readsCompressedLogs()
{
    QFETCH(QString, program);
    const QByteArray packed =
        runProgram(program, {"-c"}, readFile(dataFile("weekday-year.log"))).output;
    QVERIFY(!packed.isEmpty());
    QCOMPARE(m_log->import(m_log->writtenLog(packed + packed, "2023-06-18T00:00:00", "named.log"))
                 .exitCode,
             0);
    const QByteArray twice = m_log->exported();
    QCOMPARE(twice.count('\n'), 5);
    QCOMPARE(m_log->import("-", {"--json"}, packed).json().object().value("added").toInt(), 0);
    QCOMPARE(m_log->exported(), twice);
}

void ConnrecordLogFilesTest::refusesABrokenArchive_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("isCut");

    for (const char *const program : {"gzip", "xz", "zstd", "bzip2"}) {
        QTest::addRow("%s, truncated", program) << program << true;
        QTest::addRow("%s, one bit of the sum", program) << program << false;
    }
}

void ConnrecordLogFilesTest::refusesABrokenArchive()
{
    QFETCH(QString, program);
    QFETCH(bool, isCut);
    QByteArray packed = runProgram(program, {"-c"}, readFile(dataFile("weekday-year.log"))).output;
    if (isCut)
        packed.chop(2);
    else
        packed[packed.size() - 6] = char(packed.at(packed.size() - 6) ^ 1);
    const ConnrecordRun result = m_log->import("-", {}, packed);
    QCOMPARE(result.exitCode, 4);
    QVERIFY2(result.error.startsWith("connrecord: standard input cannot be read to its end: ") &&
                 result.error.endsWith(". Nothing was imported.\n"),
             result.error);
    QVERIFY(!QFile::exists(m_log->store()));
}

void ConnrecordLogFilesTest::keepsLittleOfALargeArchiveInMemory()
{
#ifdef SANITIZED
    QSKIP("the sanitizers need more memory than the limit leaves", "");
#endif
    // 256 MiB in one line, then a log.
    QByteArray log = QByteArray(256 << 20, 'x') + '\n' + readFile(dataFile("weekday-year.log"));
    const QString path =
        m_log->writtenLog(runProgram("zstd", {"-c"}, log).output, "2023-06-18T00:00:00", "large");
    log.clear();
    const ConnrecordRun result =
        runProgram("sh", {"-c", "ulimit -v 200000; exec \"$0\" \"$@\"", connrecordProgram(),
                          "--store", m_log->store(), "import", "--format", "pppd", path});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(m_log->exported(), readFile(dataFile("weekday-year.csv")));
}

void ConnrecordLogFilesTest::refusesMoreMessagesThanFitIntoMemory()
{
#ifdef SANITIZED
    QSKIP("the sanitizers need more memory than the limit leaves", "");
#endif
    // Few bytes in an archive, and each of the two would be little enough.
    const QByteArray messages = QByteArray("Exit.\n").repeated(500001);
    const QString path = m_log->writtenLog(runProgram("zstd", {"-c"}, messages).output,
                                           "2023-06-18T00:00:00", "messages.zst");
    const ConnrecordRun result =
        runProgram("sh", {"-c", "ulimit -v 2000000; exec \"$0\" \"$@\"", connrecordProgram(),
                          "--store", m_log->store(), "import", "--format", "pppd", path, path});
    QCOMPARE(result.exitCode, 4);
    QCOMPARE(result.error,
             "connrecord: \"" + path.toUtf8() +
                 "\" is too much: together, more than 1000000 messages of pppd and jumps of a "
                 "clock cannot be read at once. Nothing was imported; import fewer or smaller "
                 "files.\n");
    QVERIFY(!QFile::exists(m_log->store()));
}

QTEST_GUILESS_MAIN(ConnrecordLogFilesTest)

#include "tst_connrecordlogfiles.moc"
