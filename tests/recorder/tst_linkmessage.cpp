// SPDX-License-Identifier: MIT
#include "recorder/LinkMessage.h"

#include "KernelMessage.h"

#include <QTest>

#include <linux/if.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if_arp.h>

#include <cstring>
#include <limits>
#include <memory>

using recorder::LinkReport;
using recorder::parseLinkMessage;

namespace
{

ifinfomsg linkHeader(unsigned flags)
{
    ifinfomsg header = {};
    header.ifi_index = 7;
    header.ifi_flags = flags;
    header.ifi_type = ARPHRD_NONE;
    return header;
}

QByteArray statistics(std::uint64_t received, std::uint64_t sent)
{
    rtnl_link_stats64 counters = {};
    counters.rx_packets = 1;
    counters.tx_packets = 2;
    counters.rx_bytes = received;
    counters.tx_bytes = sent;
    return {reinterpret_cast<const char *>(&counters), sizeof(counters)};
}

KernelMessage linkMessage(std::uint16_t type, unsigned flags)
{
    KernelMessage message(type);
    message.putHeader(linkHeader(flags));
    message.putAttribute(IFLA_IFNAME, QByteArray("wwan0\0", 6));
    return message;
}

/// One attribute, for another one to hold.
QByteArray attribute(std::uint16_t type, const QByteArray &value)
{
    nlattr header = {};
    header.nla_len = static_cast<std::uint16_t>(NLA_HDRLEN + value.size());
    header.nla_type = type;
    const QByteArray padding(NLA_ALIGN(int(value.size())) - int(value.size()), '\0');
    return QByteArray(reinterpret_cast<const char *>(&header), sizeof(header)) + value + padding;
}

/// A text with its terminator, as the kernel sends it.
QByteArray terminated(const char *text)
{
    return {text, static_cast<int>(std::strlen(text)) + 1};
}

KernelMessage linkOfKind(const char *kind)
{
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_LINKINFO | NLA_F_NESTED,
                         attribute(IFLA_INFO_DATA, "data") +
                             attribute(IFLA_INFO_KIND, terminated(kind)));
    return message;
}

constexpr int missing = -1;

std::optional<LinkReport> linkIn(const KernelMessage &message)
{
    const auto news = parseLinkMessage(message.header());
    const auto *const report = news ? std::get_if<LinkReport>(&*news) : nullptr;
    return report ? std::optional<LinkReport>(*report) : std::nullopt;
}

} // namespace

class LinkMessageTest : public QObject
{
    Q_OBJECT

private slots:
    void readsALink();
    void readsWhetherALinkIsUpAndRunning();
    void aLineIsThereWhenTrafficCanPass_data();
    void aLineIsThereWhenTrafficCanPass();
    void readsThatALinkIsGone();
    void tellsPppFromOtherLinks();
    void readsWhatKindOfLinkItIs();
    void readsAlternativeNames();
    void readsNothingOutsideNestedAttributes();
    void readsCountersBeyond32Bits();
    void holdsAnImpossibleCounterAtTheLargestNumber();
    void takesCountersOfOtherLengths_data();
    void takesCountersOfOtherLengths();
    void ignoresABridgesNewsOfItsPorts();
    void readsNothingFromOtherMessages();
    void readsNothingOutsideACutMessage();
};

void LinkMessageTest::readsALink()
{
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, statistics(2000, 1000));
    const auto link = linkIn(message);
    QCOMPARE(link->index, 7);
    QCOMPARE(link->name, std::string("wwan0"));
    QVERIFY(!link->isGone);
    QCOMPARE(link->counters->downloaded, std::int64_t{2000});
    QCOMPARE(link->counters->uploaded, std::int64_t{1000});
}

void LinkMessageTest::readsWhetherALinkIsUpAndRunning()
{
    QVERIFY(linkIn(linkMessage(RTM_NEWLINK, IFF_UP))->isUp);
    QVERIFY(!linkIn(linkMessage(RTM_NEWLINK, IFF_UP))->isRunning);
    QVERIFY(linkIn(linkMessage(RTM_NEWLINK, IFF_UP | IFF_RUNNING))->isRunning);
    QVERIFY(!linkIn(linkMessage(RTM_NEWLINK, IFF_BROADCAST))->isUp);
}

void LinkMessageTest::aLineIsThereWhenTrafficCanPass_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isRunning");
    constexpr uint carrier = IFF_LOWER_UP;
    constexpr int usual = IF_LINK_MODE_DEFAULT;
    QTest::newRow("no carrier") << 0U << int{IF_OPER_DOWN} << usual << false;
    QTest::newRow("up") << (carrier | IFF_RUNNING) << int{IF_OPER_UP} << usual << true;
    QTest::newRow("a carrier, the state late") << carrier << int{IF_OPER_DOWN} << usual << true;
    QTest::newRow("a carrier alone") << carrier << missing << missing << true;
    QTest::newRow("an unknown state") << 0U << int{IF_OPER_UNKNOWN} << usual << true;
    QTest::newRow("waiting") << carrier << int{IF_OPER_DORMANT} << usual << false;
    QTest::newRow("waiting by the driver's word")
        << (carrier | IFF_DORMANT) << int{IF_OPER_DOWN} << usual << false;
    QTest::newRow("being tested") << carrier << int{IF_OPER_TESTING} << usual << false;
    QTest::newRow("about to wait")
        << carrier << int{IF_OPER_DOWN} << int{IF_LINK_MODE_DORMANT} << false;
    QTest::newRow("having waited")
        << (carrier | IFF_RUNNING) << int{IF_OPER_UP} << int{IF_LINK_MODE_DORMANT} << true;
}

void LinkMessageTest::aLineIsThereWhenTrafficCanPass()
{
    QFETCH(uint, flags);
    QFETCH(int, state);
    QFETCH(int, mode);
    QFETCH(bool, isRunning);
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP | flags);
    if (state != missing)
        message.putByte(IFLA_OPERSTATE, state);
    if (mode != missing)
        message.putByte(IFLA_LINKMODE, mode);
    QCOMPARE(linkIn(message)->isRunning, isRunning);
}

void LinkMessageTest::readsThatALinkIsGone()
{
    QVERIFY(linkIn(linkMessage(RTM_DELLINK, 0))->isGone);
}

void LinkMessageTest::tellsPppFromOtherLinks()
{
    QVERIFY(!linkIn(linkMessage(RTM_NEWLINK, IFF_POINTOPOINT))->isPpp);
    KernelMessage message(RTM_NEWLINK);
    ifinfomsg header = linkHeader(0);
    header.ifi_type = ARPHRD_PPP;
    message.putHeader(header);
    QVERIFY(linkIn(message)->isPpp);
}

void LinkMessageTest::readsWhatKindOfLinkItIs()
{
    QVERIFY(linkIn(linkOfKind("wwan"))->isWwan);
    QVERIFY(!linkIn(linkOfKind("wwan"))->isPpp);
    QVERIFY(linkIn(linkOfKind("ppp"))->isPpp);
    QVERIFY(!linkIn(linkOfKind("ppp"))->isWwan);
    QVERIFY(!linkIn(linkOfKind("veth"))->isWwan);
    QVERIFY(!linkIn(linkOfKind("veth"))->isPpp);
    QVERIFY(!linkIn(linkMessage(RTM_NEWLINK, IFF_UP))->isWwan);
}

void LinkMessageTest::readsAlternativeNames()
{
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_PROP_LIST | NLA_F_NESTED,
                         attribute(IFLA_ALT_IFNAME, terminated("a-name-of-more-than-15-bytes")) +
                             attribute(IFLA_ALT_IFNAME, terminated("lte")));
    QCOMPARE(linkIn(message)->alternativeNames,
             (std::vector<std::string>{"a-name-of-more-than-15-bytes", "lte"}));
    QCOMPARE(linkIn(message)->name, std::string("wwan0"));
    QVERIFY(linkIn(linkMessage(RTM_NEWLINK, IFF_UP))->alternativeNames.empty());
}

/// As long as the one that holds them says, and no longer.
void LinkMessageTest::readsNothingOutsideNestedAttributes()
{
    const QByteArray whole = attribute(IFLA_INFO_KIND, terminated("wwan"));
    for (int length = 0; length < whole.size(); ++length) {
        KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
        message.putAttribute(IFLA_LINKINFO | NLA_F_NESTED, whole.left(length));
        QVERIFY(!linkIn(message)->isWwan || length >= NLA_HDRLEN + 5);
    }
}

void LinkMessageTest::readsCountersBeyond32Bits()
{
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, statistics(5000000000, 4294967296));
    QCOMPARE(linkIn(message)->counters->downloaded, std::int64_t{5000000000});
    QCOMPARE(linkIn(message)->counters->uploaded, std::int64_t{4294967296});
}

void LinkMessageTest::holdsAnImpossibleCounterAtTheLargestNumber()
{
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, statistics(std::numeric_limits<std::uint64_t>::max(), 1));
    QCOMPARE(linkIn(message)->counters->downloaded, std::numeric_limits<std::int64_t>::max());
}

void LinkMessageTest::takesCountersOfOtherLengths_data()
{
    QTest::addColumn<QByteArray>("counters");
    QTest::addColumn<bool>("isReadable");
    QTest::newRow("an older kernel's, without the last ones")
        << statistics(1, 2).left(23 * 8) << true;
    QTest::newRow("a newer kernel's") << statistics(1, 2) + QByteArray(64, 'x') << true;
    QTest::newRow("cut before the bytes sent") << statistics(1, 2).left(3 * 8 + 7) << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void LinkMessageTest::takesCountersOfOtherLengths()
{
    QFETCH(QByteArray, counters);
    QFETCH(bool, isReadable);
    KernelMessage message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, counters);
    QCOMPARE(linkIn(message)->counters.has_value(), isReadable);
}

void LinkMessageTest::ignoresABridgesNewsOfItsPorts()
{
    KernelMessage message(RTM_DELLINK);
    ifinfomsg header = linkHeader(IFF_UP);
    header.ifi_family = AF_BRIDGE;
    message.putHeader(header);
    QVERIFY(!parseLinkMessage(message.header()));
}

void LinkMessageTest::readsNothingFromOtherMessages()
{
    KernelMessage message(RTM_NEWROUTE);
    message.putHeader(rtmsg{});
    QVERIFY(!parseLinkMessage(message.header()));
    QVERIFY(!parseLinkMessage(KernelMessage(NLMSG_DONE).header()));
}

void LinkMessageTest::readsNothingOutsideACutMessage()
{
    KernelMessage complete = linkMessage(RTM_NEWLINK, IFF_UP);
    complete.putAttribute(IFLA_STATS64, statistics(1, 2));
    // Everything in a message begins at a multiple of four bytes.
    for (std::uint32_t length = NLMSG_HDRLEN; length < complete.header().nlmsg_len; length += 4) {
        // A copy on the heap with nothing behind it, so that the address sanitizer
        // sees a read outside.
        const std::unique_ptr<char[]> bytes(new char[length]);
        std::memcpy(bytes.get(), &complete.header(), length);
        auto *const message = reinterpret_cast<nlmsghdr *>(bytes.get());
        message->nlmsg_len = length;
        const auto news = parseLinkMessage(*message);
        QCOMPARE(news.has_value(), length >= NLMSG_LENGTH(sizeof(ifinfomsg)));
        QVERIFY(!news || !std::get<LinkReport>(*news).counters);
    }
}

QTEST_GUILESS_MAIN(LinkMessageTest)

#include "tst_linkmessage.moc"
