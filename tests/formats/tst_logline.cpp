// SPDX-License-Identifier: MIT
#include "formats/LogLine.h"

#include <QTest>

using namespace formats;
using namespace usage;

class LogLineTest : public QObject
{
    Q_OBJECT

private slots:
    void takesALineApart_data();
    void takesALineApart();
    void findsTheHost_data();
    void findsTheHost();
    void seesATimeThatCannotBeRead_data();
    void seesATimeThatCannotBeRead();
    void survivesAnyBytes();
};

namespace
{

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<int>(view.size()));
}

QString timeText(const CalendarTime &time)
{
    const QString local = QString("%1-%2-%3 %4:%5:%6")
                              .arg(time.year)
                              .arg(time.month)
                              .arg(time.day)
                              .arg(time.hour)
                              .arg(time.minute)
                              .arg(time.second);
    return time.utcOffset ? local + ' ' + QString::number(*time.utcOffset) : local;
}

} // namespace

void LogLineTest::takesALineApart_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("process");
    QTest::addColumn<qint64>("pid");
    QTest::addColumn<QString>("message");

    QTest::newRow("host and facility") << "Nov 10 17:02:09 gw daemon.info pppd[485]: Exit."
                                       << "0-11-10 17:2:9"
                                       << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("host alone") << "Mar 06 12:59:54 gw pppd[1288]: Exit."
                                << "0-3-6 12:59:54"
                                << "pppd" << qint64(1288) << "Exit.";
    QTest::newRow("a day of one digit") << "Mar  6 12:59:54 gw pppd[1288]: Exit."
                                        << "0-3-6 12:59:54"
                                        << "pppd" << qint64(1288) << "Exit.";
    QTest::newRow("ISO time in UTC, host and facility with colons")
        << "2023-08-21T04:30:26Z: gw: daemon.info pppd[12606]: Exit."
        << "2023-8-21 4:30:26 0"
        << "pppd" << qint64(12606) << "Exit.";
    QTest::newRow("ISO time with a fraction, no host")
        << "2023-08-10T14:45:43.092 pppd[4711]: Exit."
        << "2023-8-10 14:45:43"
        << "pppd" << qint64(4711) << "Exit.";
    QTest::newRow("ISO time with a fraction and an offset")
        << "2023-08-10T14:45:43.092871+02:00 gw pppd[4711]: Exit."
        << "2023-8-10 14:45:43 7200"
        << "pppd" << qint64(4711) << "Exit.";
    QTest::newRow("a priority in front") << "<6>May 20 14:22:18 chat[537]: expect (OK)"
                                         << "0-5-20 14:22:18"
                                         << "chat" << qint64(537) << "expect (OK)";
    QTest::newRow("weekday and year") << "Sat Jun 17 17:29:16 2023 daemon.notice pppd[3844]: Exit."
                                      << "2023-6-17 17:29:16"
                                      << "pppd" << qint64(3844) << "Exit.";
    QTest::newRow("weekday, and no year but a host of four digits and more")
        << "Sat Jun 17 17:29:16 2023gw pppd[3844]: Exit."
        << "0-6-17 17:29:16"
        << "pppd" << qint64(3844) << "Exit.";
    QTest::newRow("RFC 5424") << "<30>1 2023-11-10T17:02:09.123Z gw pppd 485 - - Exit."
                              << "2023-11-10 17:2:9 0"
                              << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("RFC 5424 with structured data and a mark")
        << "<30>1 2023-11-10T17:02:09+01:00 gw /usr/sbin/pppd 485 ID4 "
           "[a@1 b=\"x\\\"]y [\"][c] \xEF\xBB\xBF"
           "Exit."
        << "2023-11-10 17:2:9 3600"
        << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("RFC 5424 without anything") << "<30>1 2023-11-10T17:02:09Z - - - - - Exit."
                                               << "2023-11-10 17:2:9 0"
                                               << "" << qint64(-1) << "Exit.";
    QTest::newRow("short-iso") << "2023-11-10T17:02:09+0100 gw pppd[485]: Exit."
                               << "2023-11-10 17:2:9 3600"
                               << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("short-full in local time") << "Fri 2023-11-10 17:02:09 CET gw pppd[485]: Exit."
                                              << "2023-11-10 17:2:9 3600"
                                              << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("short-full in UTC") << "Fri 2023-11-10 17:02:09 UTC gw pppd[485]: Exit."
                                       << "2023-11-10 17:2:9 0"
                                       << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("short-full in the first of two equal hours")
        << "Sun 2023-10-29 02:30:00 CEST gw pppd[485]: Exit."
        << "2023-10-29 2:30:0 7200"
        << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("short-full in the second of two equal hours")
        << "Sun 2023-10-29 02:30:00 CET gw pppd[485]: Exit."
        << "2023-10-29 2:30:0 3600"
        << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("short-unix") << "1699632129.123456 gw pppd[485]: Exit."
                                << "2023-11-10 16:2:9 0"
                                << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("no process") << "2025-09-09 16:57:37.935190500 Connect time 1494.0 minutes."
                                << "2025-9-9 16:57:37"
                                << "" << qint64(-1) << "Connect time 1494.0 minutes.";
    QTest::newRow("29 February without a year") << "Feb 29 12:00:00 gw pppd[1]: Exit."
                                                << "0-2-29 12:0:0"
                                                << "pppd" << qint64(1) << "Exit.";
    QTest::newRow("a process with its folder") << "Nov 10 17:02:09 gw /usr/sbin/pppd[485]: Exit."
                                               << "0-11-10 17:2:9"
                                               << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("a carriage return at the end") << "Nov 10 17:02:09 gw pppd[485]: Exit.\r"
                                                  << "0-11-10 17:2:9"
                                                  << "pppd" << qint64(485) << "Exit.";
    QTest::newRow("the first process counts") << "Nov 10 17:02:09 gw sh[434]: pppd[485]: Exit."
                                              << "0-11-10 17:2:9"
                                              << "sh" << qint64(434) << "pppd[485]: Exit.";
    QTest::newRow("spaces within the message stay")
        << "Nov 10 17:02:09 gw pppd[485]: local  IP address 198.51.100.7"
        << "0-11-10 17:2:9"
        << "pppd" << qint64(485) << "local  IP address 198.51.100.7";
}

void LogLineTest::takesALineApart()
{
    QFETCH(QString, line);
    const std::string bytes = line.toStdString();
    const LogLine parsed = parseLogLine(bytes);
    QVERIFY(parsed.time);
    QTEST(timeText(*parsed.time), "time");
    QTEST(text(parsed.process), "process");
    QTEST(qint64(parsed.pid), "pid");
    QTEST(text(parsed.message), "message");
}

void LogLineTest::findsTheHost_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("host");

    QTest::newRow("alone") << "Mar 06 12:59:54 gw pppd[1288]: Exit."
                           << "gw";
    QTest::newRow("with its domain") << "Mar 06 12:59:54 gw.daemon.info pppd[1288]: Exit."
                                     << "gw.daemon.info";
    QTest::newRow("in front of a facility") << "Nov 10 17:02:09 gw daemon.info pppd[485]: Exit."
                                            << "gw";
    QTest::newRow("behind a facility") << "Nov 10 17:02:09 daemon.notice gw pppd[485]: Exit."
                                       << "gw";
    QTest::newRow("of RFC 5424") << "<30>1 2023-11-10T17:02:09Z gw pppd 485 - - Exit."
                                 << "gw";
    QTest::newRow("with a colon") << "2023-08-21T04:30:26Z: gw: daemon.info pppd[12606]: Exit."
                                  << "gw";
    QTest::newRow("behind a time that cannot be read") << "Nov 31 17:02:09 gw pppd[1]: Exit."
                                                       << "gw";
    QTest::newRow("none behind a time that cannot be read") << "Nov 31 17:02:09 pppd[1]: Exit."
                                                            << "";
    QTest::newRow("a facility alone") << "Sat Jun 17 17:29:16 2023 local7.warn pppd[3844]: Exit."
                                      << "";
    QTest::newRow("none") << "<6>May 20 14:22:18 chat[537]: expect (OK)"
                          << "";
    QTest::newRow("no process") << "2025-09-09 16:57:37.935190500 Connect time 1494.0 minutes."
                                << "";
}

void LogLineTest::findsTheHost()
{
    QFETCH(QString, line);
    const std::string bytes = line.toStdString();
    QTEST(text(parseLogLine(bytes).host), "host");
}

void LogLineTest::seesATimeThatCannotBeRead_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("no time at all") << "pppd[485]: Exit.";
    QTest::newRow("a day that no month has") << "Nov 31 17:02:09 gw pppd[485]: Exit.";
    QTest::newRow("30 February") << "Feb 30 17:02:09 gw pppd[485]: Exit.";
    QTest::newRow("29 February of another year") << "2023-02-29T17:02:09 pppd[485]: Exit.";
    QTest::newRow("an hour too late") << "Nov 10 24:02:09 gw pppd[485]: Exit.";
    QTest::newRow("a zone that is not the local one")
        << "Fri 2023-11-10 17:02:09 PST gw pppd[485]: Exit.";
    QTest::newRow("seconds beyond all calendars")
        << "9223372036854775807.123456 gw pppd[485]: Exit.";
    QTest::newRow("an unknown month") << "Nvo 10 17:02:09 gw pppd[485]: Exit.";
    QTest::newRow("seconds since the start") << "[   17.123456] gw pppd[485]: Exit.";
    QTest::newRow("a time that runs into the next word") << "Nov 10 17:02:09gw x pppd[485]: Exit.";
}

void LogLineTest::seesATimeThatCannotBeRead()
{
    QFETCH(QString, line);
    const std::string bytes = line.toStdString();
    const LogLine parsed = parseLogLine(bytes);
    QVERIFY(!parsed.time);
    QCOMPARE(text(parsed.process), QString("pppd"));
    QCOMPARE(parsed.pid, std::int64_t(485));
    QCOMPARE(text(parsed.message), QString("Exit."));
}

void LogLineTest::survivesAnyBytes()
{
    const std::string line = "Nov 10 17:02:09 gw daemon.info pppd[485]: Connect: ppp0 <--> /dev/x";
    for (std::size_t length = 0; length <= line.size(); ++length) {
        for (const char byte : {'\0', '\xFF', '[', ' ', ':', '9'}) {
            std::string broken = line.substr(0, length);
            broken += byte;
            broken += line.substr(std::min(length + 1, line.size()));
            const LogLine parsed = parseLogLine(broken);
            QVERIFY(parsed.message.size() <= broken.size());
        }
    }
    QCOMPARE(parseLogLine("pppd[99999999999999999999]: Exit.").pid, std::int64_t(-1));
}

QTEST_GUILESS_MAIN(LogLineTest)

#include "tst_logline.moc"
