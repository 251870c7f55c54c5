// SPDX-License-Identifier: MIT
#include "formats/PppdMessage.h"

#include <QTest>

using namespace formats;

using Kind = PppdMessage::Kind;

Q_DECLARE_METATYPE(formats::PppdMessage::Kind)

class PppdMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsTheKindAndTheText_data();
    void knowsTheKindAndTheText();
    void passesOverOtherMessages_data();
    void passesOverOtherMessages();
    void readsTheTimeConnected_data();
    void readsTheTimeConnected();
    void readsTheByteCounts_data();
    void readsTheByteCounts();
    void cleansTexts();
};

void PppdMessageTest::knowsTheKindAndTheText_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *message, Kind kind, const char *text) {
        QTest::newRow(name) << QString(message) << kind << QString(text);
    };
    row("the line is up", "Connect: ppp0 <--> /dev/ttyUSB0", Kind::Connect, "ppp0");
    row("an IPv4 address", "local  IP address 198.51.100.7", Kind::LocalAddress, "");
    row("an IPv6 address", "local  LL address fe80::1", Kind::LocalAddress, "");
    row("the dialling failed", "Connect script failed", Kind::ScriptFailed, "");
    row("the end of the process", "Exit.", Kind::Exit, "");
    row("the modem hangs up", "Modem hangup", Kind::Ending, "modem hangup");
    row("the peer ends it", "LCP terminated by peer", Kind::Ending, "terminated by peer");
    row("the peer ends it with a reason", "LCP terminated by peer (\\x03^)", Kind::Ending,
        "terminated by peer");
    row("a signal ends it", "Terminating on signal 15", Kind::Ending, "signal 15");
    row("chat gives up", "Failed", Kind::ChatFailed, "");
    row("chat gives up with a reason", "Failed (NO CARRIER)", Kind::ChatFailed, "");
    row("pppd's own APN", "connect chat -v -f /etc/chatscripts/modem -T vipmobile", Kind::PppdApn,
        "vipmobile");
    row("pppd's own APN behind a folder and quotes",
        "connect '/usr/sbin/chat -v -T vipmobile'\t\t# (from command line)", Kind::PppdApn,
        "vipmobile");
    row("pppd's own APN without a space", "connect chat -Tvipmobile", Kind::PppdApn, "vipmobile");
    row("an APN behind a dial string", "connect chat -T *99***1# -T vipmobile", Kind::PppdApn,
        "vipmobile");
    row("an APN of digits and letters", "connect chat -T 3gnet -v", Kind::PppdApn, "3gnet");
    row("the APN for the modem", "send (AT+CGDCONT=1,\"IP\",\"internet.example\"^M)", Kind::ChatApn,
        "internet.example");
    row("the APN with fields behind it", "send (AT+CGDCONT=1,\"IP\",\"hologram\",,0,0^M)",
        Kind::ChatApn, "hologram");
    row("the APN in lower case and behind another command",
        "send (atz;+cgdcont=1, \"IPV4V6\", \"a b\"^M)", Kind::ChatApn, "a b");
}

void PppdMessageTest::knowsTheKindAndTheText()
{
    QFETCH(QString, message);
    const auto parsed = parsePppdMessage(message.toStdString());
    QVERIFY(parsed);
    QTEST(parsed->kind, "kind");
    QTEST(QString::fromStdString(parsed->text), "text");
}

void PppdMessageTest::passesOverOtherMessages_data()
{
    QTest::addColumn<QString>("message");

    for (const char *const message : {"",
                                      "Connect: ",
                                      "Connect: ppp0",
                                      "Connect:  <--> /dev/ttyUSB0",
                                      "Terminating on signal",
                                      "Terminating on signal x",
                                      "LCP terminated",
                                      "Connection terminated.",
                                      "local address 198.51.100.7",
                                      "localIP address 198.51.100.7",
                                      "remote IP address 198.51.100.1",
                                      "Connect time",
                                      "Connect time 12.3",
                                      "Connect time minutes.",
                                      "Connect time 1e3 minutes.",
                                      "Connect time 1. minutes.",
                                      "Connect time .5 minutes.",
                                      "Connect time nan minutes.",
                                      "Connect time 0x10 minutes.",
                                      "Sent 1 bytes",
                                      "Sent 1 bytes, received bytes.",
                                      "Sent 1 bytes, received 2 bytes",
                                      "Sent x bytes, received 2 bytes.",
                                      "Sent 1.5 bytes, received 2 bytes.",
                                      "Failed to open /dev/ttyUSB0",
                                      "Failed(",
                                      "Exit.x",
                                      "connect chat -v -T *99#",
                                      "connect chat -v -T",
                                      "connect chat -T ''",
                                      "connect /bin/dial -T apn",
                                      "connected chat -T apn",
                                      "send (AT+CGDCONT=1,\"IP\",\"\"^M)",
                                      "send (AT+CGDCONT=1,\"IP\"^M)",
                                      "send (AT+CGDCONT=1,\"IP\",\"open",
                                      "send (AT+CGDCONT?^M)",
                                      "send (ATD*99#^M)",
                                      "AT+CGDCONT=1,\"IP\",\"internet.example\"^M"})
        QTest::newRow(*message ? message : "nothing") << QString(message);
}

void PppdMessageTest::passesOverOtherMessages()
{
    QFETCH(QString, message);
    QVERIFY(!parsePppdMessage(message.toStdString()));
}

void PppdMessageTest::readsTheTimeConnected_data()
{
    QTest::addColumn<QString>("minutes");
    QTest::addColumn<qint64>("seconds");

    QTest::newRow("0.0") << "0.0" << qint64(0);
    QTest::newRow("12.3") << "12.3" << qint64(738);
    QTest::newRow("0.1") << "0.1" << qint64(6);
    QTest::newRow("1494.0") << "1494.0" << qint64(89640);
    QTest::newRow("7") << "7" << qint64(420);
    QTest::newRow("35791394.1, the longest") << "35791394.1" << qint64(2147483646);
    QTest::newRow("longer than the store keeps") << "35791394.2" << qint64(-1);
    QTest::newRow("negative") << "-1.0" << qint64(-1);
    QTest::newRow("beyond all numbers") << QString(400, '9') << qint64(-1);
}

void PppdMessageTest::readsTheTimeConnected()
{
    QFETCH(QString, minutes);
    const auto parsed = parsePppdMessage(("Connect time " + minutes + " minutes.").toStdString());
    QVERIFY(parsed);
    QCOMPARE(parsed->kind, Kind::ConnectTime);
    QTEST(qint64(parsed->seconds), "seconds");
}

void PppdMessageTest::readsTheByteCounts_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<qint64>("sent");
    QTest::addColumn<qint64>("received");

    QTest::newRow("small") << "Sent 31981 bytes, received 20722 bytes." << qint64(31981)
                           << qint64(20722);
    QTest::newRow("the largest") << "Sent 0 bytes, received 9223372036854775807 bytes." << qint64(0)
                                 << qint64(9223372036854775807);
    QTest::newRow("too large") << "Sent 1 bytes, received 9223372036854775808 bytes." << qint64(1)
                               << qint64(-1);
    QTest::newRow("negative") << "Sent -1 bytes, received 1 bytes." << qint64(-1) << qint64(1);
}

void PppdMessageTest::readsTheByteCounts()
{
    QFETCH(QString, message);
    const auto parsed = parsePppdMessage(message.toStdString());
    QVERIFY(parsed);
    QCOMPARE(parsed->kind, Kind::ByteCounts);
    QTEST(qint64(parsed->sent), "sent");
    QTEST(qint64(parsed->received), "received");
}

void PppdMessageTest::cleansTexts()
{
    const auto parsed =
        parsePppdMessage(std::string("send (AT+CGDCONT=1,\"IP\",\"a\0\xFF\"^M)", 31));
    QVERIFY(parsed);
    QCOMPARE(parsed->text, std::string("a\xEF\xBF\xBD\xEF\xBF\xBD"));
}

QTEST_GUILESS_MAIN(PppdMessageTest)

#include "tst_pppdmessage.moc"
