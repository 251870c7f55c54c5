// SPDX-License-Identifier: MIT
#include "PppdSample.h"
#include "formats/JoinedLog.h"
#include "formats/PppdConnections.h"

#include <QTest>

using namespace formats;
using namespace history;
using namespace usage;

/// The time of every line below is 2024-05-31, in UTC.
class PppdConnectionsTest : public QObject
{
    Q_OBJECT

private slots:
    void putsAConnectionTogether();
    void findsTheStart_data();
    void findsTheStart();
    void findsTheProfile_data();
    void findsTheProfile();
    void followsEachProcessForItself();
    void tellsEqualProcessesOfTwoHostsApart();
    void saysHowItEnded_data();
    void saysHowItEnded();
    void countsWhatCannotBeUsed_data();
    void countsWhatCannotBeUsed();
    void quotesTheFirstOfSeveralLines();
    void passesOverAWrongTimeThatIsNotNeeded();
    void takesARepeatedLineAsOftenAsOneFileHasIt();
    void takesALineOfTheJournalAndOfALogOnce();
};

namespace
{

/// "hh:mm:ss process[pid]: message" of the day, one a line; whole lines stay.
QByteArray dated(const QStringList &lines)
{
    QByteArray log;
    for (const QString &line : lines) {
        const bool isWhole = line.indexOf('T') == 10;
        log +=
            (isWhole ? line : "2024-05-31T" + QString(line).replace(8, 1, "Z gw ")).toUtf8() + '\n';
    }
    return log;
}

struct Outcome {
    std::vector<Connection> connections;
    std::vector<Unusable> unusable;
};

Outcome outcomeOf(const QByteArray &contents, const std::string &profile = {})
{
    const JoinedLog log = joinLogs({{pppdLogOf(contents), 2147483647}}, {});
    PppdConnections connections(profile);
    connections.takeAll(log.events);
    return {connections.connections(), connections.unusable()};
}

QString clock(std::int64_t utc)
{
    return utcText(utc).mid(11, 8);
}

const QString connected = "10:00:00 pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0";
const QString addressed = "10:00:05 pppd[100]: local  IP address 198.51.100.7";
const QString ended = "10:10:00 pppd[100]: Connect time 9.9 minutes.";
const QString counted = "10:10:00 pppd[100]: Sent 31981 bytes, received 20722 bytes.";

} // namespace

void PppdConnectionsTest::putsAConnectionTogether()
{
    const Outcome outcome = outcomeOf(dated({connected, addressed, ended, counted}));
    QCOMPARE(outcome.connections.size(), std::size_t(1));
    QVERIFY(outcome.unusable.empty());
    const Connection &connection = outcome.connections[0];
    QCOMPARE(utcText(connection.startUtc), QString("2024-05-31T10:00:05Z"));
    QCOMPARE(utcText(connection.endUtc), QString("2024-05-31T10:10:00Z"));
    QCOMPARE(connection.connectedSeconds, std::int64_t(594));
    QCOMPARE(connection.uploadedBytes, std::int64_t(31981));
    QCOMPARE(connection.downloadedBytes, std::int64_t(20722));
    QCOMPARE(connection.interfaceName, std::string("ppp0"));
    QCOMPARE(connection.profile, std::string("ppp0"));
    QCOMPARE(connection.ending, std::string("normal"));
}

void PppdConnectionsTest::findsTheStart_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("start");

    const QString later = "10:00:09 pppd[100]: local  LL address fe80::1";
    QTest::newRow("the first address") << QStringList{connected, addressed, later} << "10:00:05";
    QTest::newRow("an IPv6 address") << QStringList{connected, later} << "10:00:09";
    QTest::newRow("without an address, the line") << QStringList{connected} << "10:00:00";
    QTest::newRow("an address in a log that begins later") << QStringList{addressed} << "10:00:05";
    QTest::newRow("neither in the log") << QStringList() << "10:00:06";
    QTest::newRow("the clock was set back behind the address")
        << QStringList{connected, "11:00:05 pppd[100]: local  IP address 198.51.100.7"}
        << "10:00:00";
    QTest::newRow("the clock was set back behind both")
        << QStringList{"11:00:00 pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0"} << "10:00:06";
    QTest::newRow("the clock was set forward behind both")
        << QStringList{"2024-05-30T09:59:59Z gw pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0",
                       "1970-01-01T00:00:40Z gw pppd[100]: local  IP address 198.51.100.7"}
        << "10:00:06";
    QTest::newRow("the clock was set forward behind the line")
        << QStringList{"1970-01-01T00:00:40Z gw pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0",
                       addressed}
        << "10:00:05";
    QTest::newRow("the address of the connection before does not count")
        << QStringList{"08:00:00 pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0",
                       "08:00:05 pppd[100]: local  IP address 198.51.100.7",
                       "08:10:00 pppd[100]: Connect time 9.9 minutes.",
                       "08:10:00 pppd[100]: Sent 1 bytes, received 2 bytes.", connected}
        << "10:00:00";
}

void PppdConnectionsTest::findsTheStart()
{
    QFETCH(QStringList, lines);
    const Outcome outcome = outcomeOf(dated(lines + QStringList{ended, counted}));
    QVERIFY(!outcome.connections.empty());
    QTEST(clock(outcome.connections.back().startUtc), "start");
    QCOMPARE(outcome.connections.back().connectedSeconds, std::int64_t(594));
}

void PppdConnectionsTest::findsTheProfile_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("profile");

    const QString chat = "09:59:50 chat[101]: send (AT+CGDCONT=1,\"IP\",\"internet.example\"^M)";
    const QString emptyChat = "09:59:50 chat[101]: send (AT+CGDCONT=1,\"IP\",\"\"^M)";
    const QString own = "09:59:40 pppd[100]: connect chat -v -T vipmobile";
    QTest::newRow("the APN of chat") << QStringList{chat, connected} << "given"
                                     << "internet.example";
    QTest::newRow("pppd's own APN") << QStringList{own, chat, connected} << "given"
                                    << "vipmobile";
    QTest::newRow("an empty APN is none") << QStringList{emptyChat, connected} << "given"
                                          << "given";
    QTest::newRow("no APN") << QStringList{connected} << "given"
                            << "given";
    QTest::newRow("no APN and none given") << QStringList{connected} << ""
                                           << "ppp0";
    QTest::newRow("nothing at all") << QStringList() << ""
                                    << "ppp";
    QTest::newRow("a chat behind the line is for the next one")
        << QStringList{connected, QString(chat).replace(0, 8, "10:05:00")} << "given"
        << "given";
    QTest::newRow("a chat that failed")
        << QStringList{chat, "09:59:55 chat[101]: Failed (NO CARRIER)",
                       "09:59:55 pppd[100]: Connect script failed", connected}
        << "given"
        << "given";
    QTest::newRow("the process id of a process that has ended")
        << QStringList{chat, "09:59:55 pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0",
                       "09:59:55 pppd[100]: Exit.", connected}
        << "given"
        << "given";
}

void PppdConnectionsTest::findsTheProfile()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, given);
    const Outcome outcome =
        outcomeOf(dated(lines + QStringList{ended, counted}), given.toStdString());
    QCOMPARE(outcome.connections.size(), std::size_t(1));
    QTEST(QString::fromStdString(outcome.connections[0].profile), "profile");
}

void PppdConnectionsTest::followsEachProcessForItself()
{
    const Outcome outcome =
        outcomeOf(dated({connected, "10:00:01 pppd[200]: Connect: ppp1 <--> /dev/ttyUSB1",
                         addressed, "10:00:07 pppd[200]: local  IP address 198.51.100.8", ended,
                         "10:10:00 pppd[200]: Connect time 1.0 minutes.",
                         "10:10:00 pppd[200]: Sent 3 bytes, received 4 bytes.", counted}));
    QCOMPARE(outcome.connections.size(), std::size_t(2));
    QCOMPARE(outcome.connections[0].interfaceName, std::string("ppp1"));
    QCOMPARE(outcome.connections[0].downloadedBytes, std::int64_t(4));
    QCOMPARE(clock(outcome.connections[0].startUtc), QString("10:00:07"));
    QCOMPARE(outcome.connections[1].interfaceName, std::string("ppp0"));
    QCOMPARE(clock(outcome.connections[1].startUtc), QString("10:00:05"));
}

void PppdConnectionsTest::tellsEqualProcessesOfTwoHostsApart()
{
    const QByteArray one = dated({"09:59:50 chat[99]: send (AT+CGDCONT=1,\"IP\",\"one\"^M)",
                                  connected, addressed, ended, counted});
    const QByteArray other =
        QByteArray(one).replace(" gw ", " other ").replace("\"one\"", "\"two\"");
    QByteArray both;
    for (int i = 0; i < 5; ++i)
        both += one.split('\n')[i] + '\n' + other.split('\n')[i] + '\n';
    const Outcome outcome = outcomeOf(both);
    QCOMPARE(outcome.connections.size(), std::size_t(2));
    QVERIFY(outcome.unusable.empty());
    QCOMPARE(outcome.connections[0].profile, std::string("one"));
    QCOMPARE(outcome.connections[1].profile, std::string("two"));
}

void PppdConnectionsTest::saysHowItEnded_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("ending");

    const QString hangup = "10:09:59 pppd[100]: Modem hangup";
    const QString byPeer = "10:09:59 pppd[100]: LCP terminated by peer";
    const QString bySignal = "10:09:59 pppd[100]: Terminating on signal 15";
    const QString exit = "10:10:01 pppd[100]: Exit.";
    QTest::newRow("the log ends before it says")
        << QStringList{connected, ended, counted} << "normal";
    QTest::newRow("the modem") << QStringList{connected, hangup, ended, counted, exit}
                               << "modem hangup";
    QTest::newRow("the peer") << QStringList{connected, byPeer, ended, counted, exit}
                              << "terminated by peer";
    QTest::newRow("a signal") << QStringList{connected, bySignal, ended, counted, exit}
                              << "signal 15";
    QTest::newRow("the end of the process alone")
        << QStringList{connected, ended, counted, exit} << "exit";
    QTest::newRow("the process dials again")
        << QStringList{connected,
                       ended,
                       counted,
                       "10:11:00 pppd[100]: Connect: ppp0 <--> /dev/x",
                       "10:12:00 pppd[100]: Modem hangup",
                       exit}
        << "normal";
    QTest::newRow("the first reason")
        << QStringList{connected, byPeer, ended, counted, hangup} << "terminated by peer";
    QTest::newRow("a reason behind the byte counts")
        << QStringList{connected, ended, counted, hangup, exit} << "modem hangup";
    QTest::newRow("the log begins with the reason")
        << QStringList{hangup, ended, counted} << "modem hangup";
    QTest::newRow("a reason from before")
        << QStringList{hangup, connected, ended, counted} << "normal";
    QTest::newRow("another process")
        << QStringList{connected, QString(hangup).replace("100", "200"), ended, counted,
                       QString(exit).replace("100", "200")}
        << "normal";
}

void PppdConnectionsTest::saysHowItEnded()
{
    QFETCH(QStringList, lines);
    const Outcome outcome = outcomeOf(dated(lines));
    QCOMPARE(outcome.connections.size(), std::size_t(1));
    QTEST(QString::fromStdString(outcome.connections[0].ending), "ending");
}

void PppdConnectionsTest::countsWhatCannotBeUsed_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("unusable"); // count, first line, reason
    QTest::addColumn<int>("usable");

    const QString neverEnds = "a connection does not end in the log";
    const QString outOfRange = "a number or time is out of range";
    QTest::newRow("a connection that never ends")
        << QStringList{connected, addressed} << QStringList{"1 1 " + neverEnds} << 0;
    QTest::newRow("an address alone")
        << QStringList{addressed} << QStringList{"1 1 " + neverEnds} << 0;
    QTest::newRow("a line that is followed by another")
        << QStringList{connected, connected, addressed, ended, counted}
        << QStringList{"1 1 " + neverEnds} << 1;
    QTest::newRow("a process that ends without a word")
        << QStringList{connected, "10:00:09 pppd[100]: Exit."} << QStringList{"1 1 " + neverEnds}
        << 0;
    QTest::newRow("no byte counts at the end of the log")
        << QStringList{connected, ended} << QStringList{"1 2 a connect time has no byte counts"}
        << 0;
    QTest::newRow("no byte counts before the next connection")
        << QStringList{connected, ended, connected, ended, counted}
        << QStringList{"1 2 a connect time has no byte counts"} << 1;
    QTest::newRow("no byte counts before the next connect time")
        << QStringList{ended, ended, counted}
        << QStringList{"1 1 a connect time has no byte counts"} << 1;
    QTest::newRow("no connect time") << QStringList{connected, counted}
                                     << QStringList{"1 2 byte counts have no connect time"} << 0;
    QTest::newRow("more bytes than the store keeps")
        << QStringList{connected, ended,
                       "10:10:00 pppd[100]: Sent 9223372036854775808 bytes, received 2 bytes."}
        << QStringList{"1 3 " + outOfRange} << 0;
    QTest::newRow("longer than the store keeps")
        << QStringList{connected, "10:10:00 pppd[100]: Connect time 99999999.9 minutes.", counted}
        << QStringList{"1 2 " + outOfRange} << 0;
    QTest::newRow("an interface name that is too long")
        << QStringList{"10:00:00 pppd[100]: Connect: " + QString(32, 'p') + " <--> /dev/x", ended,
                       counted}
        << QStringList{"1 2 " + outOfRange} << 0;
    QTest::newRow("a start before 1970")
        << QStringList{"10:10:00 pppd[100]: Connect time 30000000.0 minutes.", counted}
        << QStringList{"1 1 " + outOfRange} << 0;
    QTest::newRow("a time of the end that cannot be read")
        << QStringList{connected, "10:77:00 pppd[100]: Connect time 9.9 minutes.", counted}
        << QStringList{"1 2 the time stamp cannot be read"} << 0;
}

void PppdConnectionsTest::countsWhatCannotBeUsed()
{
    QFETCH(QStringList, lines);
    QFETCH(int, usable);
    const Outcome outcome = outcomeOf(dated(lines));
    QStringList unusable;
    for (const Unusable &entry : outcome.unusable)
        unusable << QString("%1 %2 ").arg(entry.count).arg(entry.firstLine) +
                        QString::fromStdString(inEnglish(entry.reason));
    QTEST(unusable, "unusable");
    QCOMPARE(int(outcome.connections.size()), usable);
}

void PppdConnectionsTest::quotesTheFirstOfSeveralLines()
{
    QStringList lines;
    for (int pid = 100; pid < 140; ++pid)
        lines << QString("10:00:00 pppd[%1]: Connect: ppp0 <--> /dev/ttyUSB0").arg(pid);
    const Outcome outcome = outcomeOf(dated(lines));
    QCOMPARE(outcome.unusable.size(), std::size_t(1));
    QCOMPARE(outcome.unusable[0].count, std::size_t(40));
    QCOMPARE(outcome.unusable[0].firstLine, std::int64_t(1));
    QCOMPARE(outcome.unusable[0].firstText,
             std::string("2024-05-31T10:00:00Z gw pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0"));
}

void PppdConnectionsTest::passesOverAWrongTimeThatIsNotNeeded()
{
    const Outcome outcome = outcomeOf(
        dated({"10:77:00 pppd[100]: Connect: ppp0 <--> /dev/ttyUSB0", addressed, ended, counted}));
    QCOMPARE(outcome.connections.size(), std::size_t(1));
    QCOMPARE(clock(outcome.connections[0].startUtc), QString("10:00:05"));
    QCOMPARE(outcome.connections[0].interfaceName, std::string("ppp0"));
    // It is said all the same: the log is not quite what it should be.
    QCOMPARE(outcome.unusable.size(), std::size_t(1));
}

void PppdConnectionsTest::takesARepeatedLineAsOftenAsOneFileHasIt()
{
    const auto fileOf = [](const QStringList &lines) {
        return formats::LogFile{pppdLogOf(dated(lines)), 2147483647};
    };
    const std::vector<formats::LogFile> files = {fileOf({counted}), fileOf({counted, counted})};
    QCOMPARE(joinLogs(files, {}).events.size(), std::size_t(2));
}

/// Also where neither names a process id.
void PppdConnectionsTest::takesALineOfTheJournalAndOfALogOnce()
{
    const QByteArray log = "<30>1 2024-05-31T10:10:00Z gw pppd - - - Connect time 9.9 minutes.\n";
    const QByteArray journal = "{\"__REALTIME_TIMESTAMP\":\"1717150200000000\",\"_HOSTNAME\":"
                               "\"gw\",\"SYSLOG_IDENTIFIER\":\"pppd\",\"MESSAGE\":"
                               "\"Connect time 9.9 minutes.\"}\n";
    const std::vector<formats::LogFile> files = {{pppdLogOf(log), 2147483647},
                                                 {pppdLogOf(journal), 2147483647}};
    QCOMPARE(joinLogs({files[1]}, {}).events.size(), std::size_t(1));
    QCOMPARE(joinLogs(files, {}).events.size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(PppdConnectionsTest)

#include "tst_pppdconnections.moc"
