// SPDX-License-Identifier: MIT
#include "recorder/LinkTable.h"

#include <QTest>

using recorder::AddressReport;
using recorder::LinkChange;
using recorder::LinkCounters;
using recorder::LinkReport;
using recorder::LinkTable;

namespace
{

LinkReport running(std::int64_t bytes, bool isPpp = false)
{
    LinkReport report;
    report.index = 3;
    report.name = "wwan0";
    report.isUp = true;
    report.isRunning = true;
    report.isPpp = isPpp;
    report.counters = LinkCounters{bytes, bytes};
    return report;
}

LinkReport down(std::int64_t bytes)
{
    LinkReport report = running(bytes);
    report.isUp = false;
    report.isRunning = false;
    return report;
}

AddressReport address(bool isThere, bool isIpv6LinkLocal = false)
{
    return {3, "address", isThere, isIpv6LinkLocal};
}

} // namespace

class LinkTableTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_table = LinkTable(); }

    void aLinkIsConnectedWhileItIsUpRunningAndHasAnAddress();
    void anIpv6LinkLocalAddressCountsWithPppOnly();
    void knowsNothingOfUnknownLinks();
    void saysThatALinkIsGoneWithItsLastCounters();
    void followsARename();
    void tellsMobileLinks_data();
    void tellsMobileLinks();
    void asksForTheDeviceTypeUnderEachNewName();
    void hasAlternativeNamesAsLongAsTheyAreListed();
    void keepsTheCountersWhenAMessageHasNone();

    void aNewLinksConnectionBeginsWithItsFirstCounters();
    void aConnectionBeginsWhereTheLinkStoodBefore();
    void aConnectionThatGetsAnotherNameBeginsThere();
    void aListedConnectionBeginsNow();
    void aListedPppConnectionBeginsWithTheLink();
    void aLinkMadeWhileMessagesWereLostBeginsAtNothing();
    void aDumpedConnectionBeginsNowThoughTheDumpWasRepeated();
    void aTableThatHasForgottenAllIsAsInTheBeginning();
    void theMarkOfAConnectionChangesWithLineAndAddresses();

    void aDumpFindsALinkThatIsGone();
    void aDumpFindsAnAddressThatIsGone();
    void aDumpLeavesWhatItMentions();

private:
    LinkChange tell(const LinkReport &report) { return m_table.apply(report).value(); }
    LinkChange tell(const AddressReport &report) { return m_table.apply(report).value(); }
    std::int64_t base() { return m_table.links().front().idleCounters.uploaded; }

    LinkTable m_table;
};

void LinkTableTest::aLinkIsConnectedWhileItIsUpRunningAndHasAnAddress()
{
    QVERIFY(!tell(running(0)).link.isConnected());
    QVERIFY(tell(address(true)).link.isConnected());
    LinkReport withoutLine = running(0);
    withoutLine.isRunning = false;
    QVERIFY(!tell(withoutLine).link.isConnected());
    QVERIFY(tell(running(0)).link.isConnected());
    QVERIFY(!tell(down(0)).link.isConnected());
    QVERIFY(tell(running(0)).link.isConnected());
    QVERIFY(!tell(address(false)).link.isConnected());
}

void LinkTableTest::anIpv6LinkLocalAddressCountsWithPppOnly()
{
    tell(running(0));
    QVERIFY(!tell(address(true, true)).link.isConnected());
    QVERIFY(tell(running(0, true)).link.isConnected());
}

void LinkTableTest::knowsNothingOfUnknownLinks()
{
    LinkReport gone = down(0);
    gone.isGone = true;
    QVERIFY(!m_table.apply(gone));
    QVERIFY(!m_table.apply(address(true)));
    QVERIFY(m_table.links().empty());
}

void LinkTableTest::saysThatALinkIsGoneWithItsLastCounters()
{
    tell(running(10));
    LinkReport gone = down(25);
    gone.isGone = true;
    const LinkChange change = tell(gone);
    QVERIFY(change.isGone);
    QVERIFY(change.hasFreshCounters);
    QCOMPARE(change.link.counters.uploaded, std::int64_t{25});
    QVERIFY(m_table.links().empty());
}

void LinkTableTest::followsARename()
{
    tell(running(0));
    LinkReport renamed = running(0);
    renamed.name = "wwan7";
    QCOMPARE(tell(renamed).link.name, std::string("wwan7"));
    QCOMPARE(m_table.links().size(), std::size_t{1});
}

void LinkTableTest::tellsMobileLinks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPpp");
    QTest::addColumn<bool>("isWwan");
    QTest::addColumn<QString>("deviceType");
    QTest::addColumn<bool>("isMobile");
    QTest::newRow("wwan0") << "wwan0" << false << false << "" << true;
    QTest::newRow("systemd's name of a slot") << "wwp0s20f0u3i12" << false << false << "" << true;
    QTest::newRow("systemd's name of an address")
        << "wwx028037ec0200" << false << false << "" << true;
    QTest::newRow("a name such as pppd gives") << "ppp0" << false << false << "" << false;
    QTest::newRow("PPP of any name") << "dsl" << true << false << "" << true;
    QTest::newRow("WWAN of any name") << "lte" << false << true << "" << true;
    QTest::newRow("a device that is one") << "enx028037ec0200" << false << false << "wwan" << true;
    QTest::newRow("another device") << "enx028037ec0200" << false << false << "wlan" << false;
    QTest::newRow("a device of no type") << "eth0" << false << false << "" << false;
    QTest::newRow("a similar name") << "wlan0" << false << false << "" << false;
}

void LinkTableTest::tellsMobileLinks()
{
    QFETCH(QString, name);
    QFETCH(bool, isPpp);
    QFETCH(bool, isWwan);
    QFETCH(QString, deviceType);
    QFETCH(bool, isMobile);
    m_table = LinkTable([&](int index, const std::string &asked) {
        return index == 3 && asked == name.toStdString() ? deviceType.toStdString() : "";
    });
    LinkReport report = running(0, isPpp);
    report.name = name.toStdString();
    report.isWwan = isWwan;
    QCOMPARE(tell(report).link.isMobile(), isMobile);
    QCOMPARE(tell(running(0, isPpp)).link.isMobile(), true); // renamed to wwan0
}

void LinkTableTest::asksForTheDeviceTypeUnderEachNewName()
{
    std::vector<std::string> asked;
    m_table = LinkTable([&asked](int, const std::string &name) {
        asked.push_back(name);
        return std::string(name == "enx1" ? "wwan" : "");
    });
    LinkReport report = running(0);
    report.name = "usb0"; // which it has no more when the question arrives
    tell(report);
    tell(report);
    report.name = "enx1";
    QVERIFY(tell(report).link.isMobile());
    report.name = "usb1";
    QVERIFY(tell(report).link.isMobile());
    QCOMPARE(asked, (std::vector<std::string>{"usb0", "enx1"}));
}

void LinkTableTest::hasAlternativeNamesAsLongAsTheyAreListed()
{
    LinkReport report = running(0);
    QVERIFY(tell(report).link.hasName("wwan0"));
    QVERIFY(!tell(report).link.hasName("lte"));
    report.alternativeNames = {"modem", "lte"};
    QVERIFY(tell(report).link.hasName("lte"));
    QVERIFY(tell(report).link.hasName("wwan0"));
    report.alternativeNames = {"modem"};
    QVERIFY(!tell(report).link.hasName("lte"));
}

void LinkTableTest::keepsTheCountersWhenAMessageHasNone()
{
    tell(running(10));
    LinkReport without = running(0);
    without.counters.reset();
    QVERIFY(!tell(without).hasFreshCounters);
    QCOMPARE(tell(without).link.counters.uploaded, std::int64_t{10});
}

void LinkTableTest::aNewLinksConnectionBeginsWithItsFirstCounters()
{
    tell(down(7));
    tell(address(true));
    tell(running(9));
    tell(running(30));
    QCOMPARE(base(), std::int64_t{7});
}

void LinkTableTest::aConnectionBeginsWhereTheLinkStoodBefore()
{
    tell(running(0));
    tell(address(true));
    tell(running(100));
    tell(down(150));
    tell(running(155));
    tell(running(170));
    QCOMPARE(base(), std::int64_t{150});
    tell(address(false));
    tell(running(180));
    tell(address(true));
    QCOMPARE(base(), std::int64_t{180});
}

/// What it moved before was under names that nobody asked for.
void LinkTableTest::aConnectionThatGetsAnotherNameBeginsThere()
{
    tell(down(7));
    tell(address(true));
    tell(running(9));
    LinkReport report = running(30);
    report.alternativeNames = {"lte"};
    tell(report);
    QCOMPARE(base(), std::int64_t{30});
    report.counters = LinkCounters{40, 40};
    tell(report);
    QCOMPARE(base(), std::int64_t{30});
    report.name = "lte0";
    tell(report);
    QCOMPARE(base(), std::int64_t{40});
}

void LinkTableTest::aListedConnectionBeginsNow()
{
    m_table.beginDump();
    tell(running(500));
    tell(address(true));
    m_table.endDump();
    QCOMPARE(base(), std::int64_t{500});
}

void LinkTableTest::aListedPppConnectionBeginsWithTheLink()
{
    m_table.beginDump();
    tell(running(500, true));
    tell(address(true));
    m_table.endDump();
    QCOMPARE(base(), std::int64_t{0});
}

void LinkTableTest::aLinkMadeWhileMessagesWereLostBeginsAtNothing()
{
    m_table.beginDump();
    m_table.endDump();
    m_table.beginDump();
    tell(running(500));
    tell(address(true));
    m_table.endDump();
    QCOMPARE(base(), std::int64_t{0});
}

void LinkTableTest::aDumpedConnectionBeginsNowThoughTheDumpWasRepeated()
{
    m_table.beginDump();
    m_table.beginDump();
    tell(running(500));
    tell(address(true));
    m_table.endDump();
    QCOMPARE(base(), std::int64_t{500});
}

void LinkTableTest::aTableThatHasForgottenAllIsAsInTheBeginning()
{
    m_table.beginDump();
    tell(running(100));
    m_table.forgetAll();
    QVERIFY(m_table.links().empty());
    // In the midst of a dump, all that a PPP link has moved would be its connection's.
    tell(running(500, true));
    tell(address(true));
    QCOMPARE(base(), std::int64_t{500});
}

void LinkTableTest::theMarkOfAConnectionChangesWithLineAndAddresses()
{
    LinkReport link = running(0);
    tell(link);
    const std::string mark = tell(address(true)).link.connectionMark();
    AddressReport later = {3, "another", true, false, 7};
    QCOMPARE(tell(later).link.connectionMark(), mark);
    QVERIFY(tell(address(false)).link.connectionMark() != mark);
    tell(address(true));
    link.carrierLosses = 1;
    QVERIFY(tell(link).link.connectionMark() != mark);
}

void LinkTableTest::aDumpFindsALinkThatIsGone()
{
    tell(running(10));
    tell(address(true));
    m_table.beginDump();
    const auto changes = m_table.endDump();
    QCOMPARE(changes.size(), std::size_t{1});
    QVERIFY(changes.front().isGone);
    QVERIFY(!changes.front().hasFreshCounters);
    QCOMPARE(changes.front().link.index, 3);
    QVERIFY(m_table.links().empty());
}

void LinkTableTest::aDumpFindsAnAddressThatIsGone()
{
    tell(running(10));
    tell(address(true));
    m_table.beginDump();
    QVERIFY(tell(running(10)).link.isConnected());
    const auto changes = m_table.endDump();
    QCOMPARE(changes.size(), std::size_t{1});
    QVERIFY(!changes.front().isGone);
    QVERIFY(!changes.front().link.isConnected());
}

void LinkTableTest::aDumpLeavesWhatItMentions()
{
    tell(running(10));
    tell(address(true));
    m_table.beginDump();
    tell(running(10));
    tell(address(true));
    QVERIFY(m_table.endDump().empty());
    QVERIFY(m_table.links().front().isConnected());
}

QTEST_GUILESS_MAIN(LinkTableTest)

#include "tst_linktable.moc"
