// SPDX-License-Identifier: MIT
#include "LinkTable.h"

#include <QTest>

using refhost::AddressReport;
using refhost::LinkChange;
using refhost::LinkCounters;
using refhost::LinkReport;
using refhost::LinkTable;

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
    void keepsTheCountersWhenAMessageHasNone();

    void aNewLinksConnectionBeginsWithItsFirstCounters();
    void aConnectionBeginsWhereTheLinkStoodBefore();
    void aListedConnectionBeginsNow();
    void aListedPppConnectionBeginsWithTheLink();
    void aLinkMadeWhileMessagesWereLostBeginsAtNothing();
    void aListedConnectionBeginsNowThoughTheListingWasRepeated();
    void theMarkOfAConnectionChangesWithLineAndAddresses();

    void aListingFindsALinkThatIsGone();
    void aListingFindsAnAddressThatIsGone();
    void aListingLeavesWhatItMentions();

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

void LinkTableTest::aListedConnectionBeginsNow()
{
    m_table.beginListing();
    tell(running(500));
    tell(address(true));
    m_table.endListing();
    QCOMPARE(base(), std::int64_t{500});
}

void LinkTableTest::aListedPppConnectionBeginsWithTheLink()
{
    m_table.beginListing();
    tell(running(500, true));
    tell(address(true));
    m_table.endListing();
    QCOMPARE(base(), std::int64_t{0});
}

void LinkTableTest::aLinkMadeWhileMessagesWereLostBeginsAtNothing()
{
    m_table.beginListing();
    m_table.endListing();
    m_table.beginListing();
    tell(running(500));
    tell(address(true));
    m_table.endListing();
    QCOMPARE(base(), std::int64_t{0});
}

void LinkTableTest::aListedConnectionBeginsNowThoughTheListingWasRepeated()
{
    m_table.beginListing();
    m_table.beginListing();
    tell(running(500));
    tell(address(true));
    m_table.endListing();
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

void LinkTableTest::aListingFindsALinkThatIsGone()
{
    tell(running(10));
    tell(address(true));
    m_table.beginListing();
    const auto changes = m_table.endListing();
    QCOMPARE(changes.size(), std::size_t{1});
    QVERIFY(changes.front().isGone);
    QVERIFY(!changes.front().hasFreshCounters);
    QCOMPARE(changes.front().link.index, 3);
    QVERIFY(m_table.links().empty());
}

void LinkTableTest::aListingFindsAnAddressThatIsGone()
{
    tell(running(10));
    tell(address(true));
    m_table.beginListing();
    QVERIFY(tell(running(10)).link.isConnected());
    const auto changes = m_table.endListing();
    QCOMPARE(changes.size(), std::size_t{1});
    QVERIFY(!changes.front().isGone);
    QVERIFY(!changes.front().link.isConnected());
}

void LinkTableTest::aListingLeavesWhatItMentions()
{
    tell(running(10));
    tell(address(true));
    m_table.beginListing();
    tell(running(10));
    tell(address(true));
    QVERIFY(m_table.endListing().empty());
    QVERIFY(m_table.links().front().isConnected());
}

QTEST_GUILESS_MAIN(LinkTableTest)

#include "tst_linktable.moc"
