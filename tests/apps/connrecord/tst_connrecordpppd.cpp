// SPDX-License-Identifier: MIT
#include "PppdImport.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

/// What the program makes of system logs in a real history. Each log in the folder
/// data/ has beside it the history that it makes.
class ConnrecordPppdTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_log.reset(new PppdImport); }
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

private:
    QScopedPointer<PppdImport> m_log;
};

namespace
{

/// One connection of a minute that ends at that "MMM dd hh:mm:ss".
QByteArray shortConnection(const QByteArray &end)
{
    return end + " gw pppd[7]: Connect time 1.0 minutes.\n" + end +
           " gw pppd[7]: Sent 1 bytes, received 2 bytes.\n";
}

} // namespace

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
    const QString log = m_log->logFile(name + ".log", changed);

    const QJsonObject first = m_log->import(log, {"--json"}).json().object();
    QCOMPARE(m_log->exported(), readFile(dataFile(name + ".csv")));
    QCOMPARE(first, (QJsonObject{{"read", count},
                                 {"added", count},
                                 {"already_there", 0},
                                 {"completed", 0},
                                 {"unusable", QJsonArray()}}));

    const ConnrecordRun second = m_log->import(log);
    QCOMPARE(second.exitCode, 0);
    QCOMPARE(second.output, "Connections read: " + QByteArray::number(count) +
                                "\nAdded: 0\nAlready there: " + QByteArray::number(count) + '\n');
    QCOMPARE(m_log->exported(), readFile(dataFile(name + ".csv")));
}

void ConnrecordPppdTest::givesTheProfileThatTheLogDoesNotShow()
{
    const QString log = m_log->logFile("no-process.log", "2025-09-10T00:00:00");
    QCOMPARE(m_log->import(log, {"--profile", "Zürich, Büro"}).exitCode, 0);
    QVERIFY2(m_log->exported().contains("\n\"Zürich, Büro\",2025-09-08T"), m_log->exported());
}

void ConnrecordPppdTest::countsAConnectionOnceWhateverItsProfile()
{
    const QString log = m_log->logFile("no-process.log", "2025-09-10T00:00:00");
    QCOMPARE(m_log->import(log, {"--profile", "one"}).exitCode, 0);
    const QByteArray before = m_log->exported();
    QCOMPARE(m_log->import(log, {"--profile", "other"}).output,
             QByteArray("Connections read: 2\nAdded: 0\nAlready there: 2\n"));
    QCOMPARE(m_log->exported(), before);
}

void ConnrecordPppdTest::completesWhatARotatedLogHadLost()
{
    const QByteArray whole = readFile(dataFile("weekday-year.log"));
    const QByteArray cut = whole.mid(whole.indexOf("Sat Jun 17 17:29:17"));
    QCOMPARE(m_log->import("-", {"--profile", "given"}, cut).exitCode, 0);
    QVERIFY2(
        m_log->exported().contains("given,2023-06-17T15:20:17Z,2023-06-17T15:29:17Z,540,55,66,"),
        m_log->exported());
    QCOMPARE(
        m_log->import("-", {"--profile", "given"}, whole).output,
        QByteArray("Connections read: 2\nAdded: 0\nAlready there: 2\nOf these, completed: 2\n"));
    QCOMPARE(m_log->exported(), readFile(dataFile("weekday-year.csv")));
    QCOMPARE(m_log->import("-", {"--json"}, cut).json().object().value("completed").toInt(), 0);
    QCOMPARE(m_log->exported(), readFile(dataFile("weekday-year.csv")));
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
        QCOMPARE(m_log->import("-", {"--json"}, log).json().object().value("added").toInt(), added);
}

void ConnrecordPppdTest::takesTheYearFromTheOrderOfTheLines()
{
    const QByteArray log = shortConnection("Dec 30 12:00:00") + shortConnection("Mar  3 12:00:00") +
                           shortConnection("Dec 31 12:00:00") + shortConnection("Mar  4 12:00:01") +
                           "Mar  4 12:00:00 gw cron[3]: a second out of order\n";
    const ConnrecordRun result = m_log->import(m_log->writtenLog(log, "2023-03-04T12:00:00"));
    QCOMPARE(result.error, QByteArray());
    const QByteArray csv = m_log->exported();
    for (const char *const end : {"2021-12-30", "2022-03-03", "2022-12-31", "2023-03-04"})
        QVERIFY2(csv.contains(QByteArray(",") + end + 'T'), csv);
}

void ConnrecordPppdTest::takesTheYearOfTheLastLine()
{
    const QByteArray log = shortConnection("Dec 30 12:00:00") + shortConnection("Mar  3 12:00:00");
    const ConnrecordRun result = m_log->import("-", {"--year", "2011"}, log);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error, QByteArray());
    QVERIFY2(m_log->exported().contains(",2010-12-30T11:00:00Z,"), m_log->exported());
    QVERIFY2(m_log->exported().contains(",2011-03-03T11:00:00Z,"), m_log->exported());
}

void ConnrecordPppdTest::saysThatTheYearIsAGuess()
{
    const QString path =
        m_log->writtenLog(shortConnection("Nov 10 12:00:00"), "2023-12-24T00:00:00");
    const ConnrecordRun result = m_log->import(path);
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.error,
             "connrecord: \"" + path.toUtf8() +
                 "\" does not show its years; its last line was taken to be of 2023. If that is "
                 "wrong, remove what was added and give the year with --year.\n");
    QVERIFY2(m_log->exported().contains(",2023-11-10T11:00:00Z,"), m_log->exported());
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
    const ConnrecordRun result = m_log->import("-", {"--year", year}, log);
    QTEST(result.exitCode, "exitCode");
    QVERIFY2(result.error.contains(reason), result.error);
    QVERIFY(!QFile::exists(m_log->store()));
}

void ConnrecordPppdTest::saysWhatItCannotUse()
{
    const ConnrecordRun result =
        m_log->import(m_log->logFile("incomplete.log", "2023-11-10T18:00:00"), {"--profile", "p"});
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
    const QString log = m_log->logFile("incomplete.log", "2023-11-10T18:00:00");
    const QJsonArray unusable =
        m_log->import(log, {"--json"}).json().object().value("unusable").toArray();
    QCOMPARE(unusable.size(), 5);
    QCOMPARE(unusable[0].toObject(),
             (QJsonObject{
                 {"reason", "a connection does not end in the log"},
                 {"count", 2},
                 {"first_file", log},
                 {"first_line", 1},
                 {"first_text", "Nov 10 09:00:00 gw pppd[300]: Connect: ppp0 <--> /dev/ttyUSB0"}}));
}

QTEST_GUILESS_MAIN(ConnrecordPppdTest)

#include "tst_connrecordpppd.moc"
