// SPDX-License-Identifier: MIT
#include "PppdSample.h"
#include "tests/Many.h"

#include <QBuffer>
#include <QTest>

#include <optional>

using namespace formats;
using namespace history;
using namespace usage;

using Kind = PppdMessage::Kind;

class PppdLogTest : public QObject
{
    Q_OBJECT

private slots:
    void findsTheMessagesOfPppdAndChat();
    void passesOverCopiesUnderAnotherName();
    void takesCopiesWhereThereIsNothingElse();
    void takesChatCopiesBesidePppdsOwnLines();
    void takesLinesWithoutAProcessWhereThereIsNothingElse();
    void findsAMessageWithoutAProcessBehindAHost();
    void followsTheClockOfAllLines();
    void takesTheNewestLineFirstWithinOneSecond();
    void keepsTheBeginningOfTexts_data();
    void keepsTheBeginningOfTexts();
    void refusesMoreThanItMayKeep_data();
    void refusesMoreThanItMayKeep();
    void survivesWhatIsNoLog_data();
    void survivesWhatIsNoLog();
};

namespace
{

QList<qint64> linesOf(const PppdLog &log)
{
    QList<qint64> lines;
    for (const PppdEvent &event : log.events)
        lines << event.line;
    return lines;
}

} // namespace

void PppdLogTest::findsTheMessagesOfPppdAndChat()
{
    const PppdLog log =
        pppdLogOf("Nov 10 17:02:00 gw kernel: usb 1-1: new device\n"
                  "Nov 10 17:02:05 gw chat[490]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n"
                  "Nov 10 17:02:09 gw pppd[485]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                  "Nov 10 17:02:09 gw pppd[485]: Connection terminated.\n"
                  "Nov 10 17:02:10 gw pppd[485]: Exit.\n");
    QCOMPARE(linesOf(log), (QList<qint64>{2, 3, 5}));
    QCOMPARE(log.events[0].message.kind, Kind::ChatApn);
    QCOMPARE(log.events[0].pid, std::int64_t(490));
    QCOMPARE(log.events[1].message.kind, Kind::Connect);
    QCOMPARE(log.events[1].time->hour, 17);
}

void PppdLogTest::passesOverCopiesUnderAnotherName()
{
    const PppdLog log =
        pppdLogOf("Nov 10 17:02:05 gw sh[434]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n"
                  "Nov 10 17:02:05 gw chat[490]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n"
                  "Nov 10 17:02:09 gw sh[434]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                  "Nov 10 17:02:09 gw pppd[485]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                  "Nov 10 17:02:09 Connect: ppp0 <--> /dev/ttyUSB0\n");
    QCOMPARE(linesOf(log), (QList<qint64>{2, 4}));
}

void PppdLogTest::takesCopiesWhereThereIsNothingElse()
{
    const PppdLog log = pppdLogOf("Nov 10 17:02:05 gw sh[434]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n"
                                  "Nov 10 17:02:09 gw sh[434]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                                  "Nov 10 17:02:09 gw pppd[485]: Exit.\n");
    QCOMPARE(linesOf(log), (QList<qint64>{1, 2}));
    QCOMPARE(log.events[1].pid, std::int64_t(434));
}

void PppdLogTest::takesChatCopiesBesidePppdsOwnLines()
{
    const PppdLog log =
        pppdLogOf("Nov 10 17:02:05 gw sh[434]: send (AT+CGDCONT=1,\"IP\",\"a\"^M)\n"
                  "Nov 10 17:02:09 gw sh[434]: Connect: ppp0 <--> /dev/ttyUSB0\n"
                  "Nov 10 17:02:09 gw pppd[485]: Connect: ppp0 <--> /dev/ttyUSB0\n");
    QCOMPARE(linesOf(log), (QList<qint64>{1, 3}));
}

void PppdLogTest::takesLinesWithoutAProcessWhereThereIsNothingElse()
{
    const PppdLog log =
        pppdLogOf("2025-09-09 16:57:37.935190500 Connect time 1494.0 minutes.\n"
                  "2025-09-09 16:57:37.935200700 Sent 1 bytes, received 2 bytes.\n");
    QCOMPARE(linesOf(log), (QList<qint64>{1, 2}));
    QCOMPARE(log.events[0].pid, log.events[1].pid);
}

void PppdLogTest::findsAMessageWithoutAProcessBehindAHost()
{
    const PppdLog log = pppdLogOf("Nov 10 17:02:09 gw daemon.info Connect time 1494.0 minutes.\n");
    QCOMPARE(linesOf(log), QList<qint64>{1});
    QCOMPARE(log.events[0].message.kind, Kind::ConnectTime);
}

void PppdLogTest::followsTheClockOfAllLines()
{
    const PppdLog log =
        pppdLogOf("Nov 10 17:02:09 gw a\n no date\nNov 11 09:00:00 gw b\n"
                  "Jan  2 09:00:00 gw pppd[1]: Connect: a <--> b\nJan  2 09:00:01 gw c\n");
    const std::vector<ClockRun> &runs = log.clock.runs();
    QCOMPARE(runs.size(), std::size_t(2));
    QCOMPARE(runs[0].first.day, 10);
    QCOMPARE(runs[0].last.day, 11);
    QCOMPARE(runs[1].last.second, 1);
    QCOMPARE(log.events.at(0).run, std::size_t(1));
    QVERIFY(pppdLogOf("no date\n").clock.runs().empty());
}

void PppdLogTest::takesTheNewestLineFirstWithinOneSecond()
{
    const PppdLog log = pppdLogOf("Nov 10 17:02:09 gw pppd[485]: Exit.\n"
                                  "Nov 10 17:02:09 gw pppd[485]: Sent 1 bytes, received 2 bytes.\n"
                                  "Nov 10 17:02:09 gw pppd[485]: Connect time 1.0 minutes.\n");
    QCOMPARE(linesOf(log), (QList<qint64>{3, 2, 1}));
}

void PppdLogTest::keepsTheBeginningOfTexts_data()
{
    QTest::addColumn<QByteArray>("line");

    const QByteArray tail(5000, 'x');
    QTest::newRow("line") << "Nov 10 17:02:09 gw pppd[485]: Connect: ppp0 <--> /dev/" + tail;
    QTest::newRow("host") << "Nov 10 17:02:09 gw" + tail + " pppd[485]: Connect: a <--> b";
    QTest::newRow("process") << "Nov 10 17:02:09 gw pppd" + tail + "[485]: Connect: a <--> b";
    QTest::newRow("interface") << "Nov 10 17:02:09 gw pppd[485]: Connect: ppp" + tail + " <--> b";
}

void PppdLogTest::keepsTheBeginningOfTexts()
{
    QFETCH(QByteArray, line);
    const PppdEvent event = pppdLogOf(line + '\n').events.at(0);
    QCOMPARE(QByteArray::fromStdString(event.lineText), line.left(240));
    for (const std::string &text :
         {event.host, event.process, event.messageText, event.message.text})
        QVERIFY(text.size() < 1000);
}

void PppdLogTest::refusesMoreThanItMayKeep_data()
{
    QTest::addColumn<QByteArray>("lines");

    QTest::newRow("messages") << QByteArray("Exit.\n").repeated(10);
    QTest::newRow("jumps of the clock")
        << QByteArray("Jan  1 00:00:00 a\nMar  1 00:00:00 a\n").repeated(5);
}

void PppdLogTest::refusesMoreThanItMayKeep()
{
    QFETCH(QByteArray, lines);
    const auto read = [&lines](std::size_t largestSize) -> std::optional<std::size_t> {
        QBuffer buffer(&lines);
        buffer.open(QIODevice::ReadOnly);
        LineReader reader(buffer, longestLogLine);
        try {
            return readPppdLog(reader, largestSize).size();
        } catch (const LogTooLarge &) {
            return std::nullopt;
        }
    };
    QVERIFY(read(10) == std::size_t(10));
    QVERIFY(!read(9));
}

void PppdLogTest::survivesWhatIsNoLog_data()
{
    QTest::addColumn<QByteArray>("contents");

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("NULs") << QByteArray(many(100000), '\0');
    QTest::newRow("bytes that are not UTF-8") << QByteArray(100000, '\xFF');
    QTest::newRow("a long line") << QByteArray(many(8000000), 'x');
    QTest::newRow("a long line of spaces") << QByteArray(many(8000000), ' ');
    QTest::newRow("many empty lines") << QByteArray(many(100000), '\n');
}

void PppdLogTest::survivesWhatIsNoLog()
{
    QFETCH(QByteArray, contents);
    const QByteArray line = "Nov 10 17:02:09 gw pppd[485]: Exit.\r\n";
    QVERIFY(pppdLogOf(contents).events.empty());
    QCOMPARE(pppdLogOf(contents + '\n' + line.mid(0, 30) + "Connect: ppp0 <--> /dev/x\r\n")
                 .events.size(),
             std::size_t(1));
}

QTEST_GUILESS_MAIN(PppdLogTest)

#include "tst_pppdlog.moc"
