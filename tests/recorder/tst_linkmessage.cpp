// SPDX-License-Identifier: MIT
#include "recorder/LinkMessage.h"

#include <QTest>

#include <libmnl/libmnl.h>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if_arp.h>

#include <array>
#include <cstring>
#include <limits>
#include <memory>

using recorder::AddressReport;
using recorder::LinkReport;
using recorder::parseLinkMessage;

namespace
{

/// A message as the kernel lays it out.
class Message
{
public:
    explicit Message(std::uint16_t type)
        : m_message(mnl_nlmsg_put_header(m_buffer.data()))
    {
        m_message->nlmsg_type = type;
    }

    template <typename Header>
    void putHeader(const Header &header)
    {
        *static_cast<Header *>(mnl_nlmsg_put_extra_header(m_message, sizeof(Header))) = header;
    }
    void putAttribute(std::uint16_t type, const QByteArray &bytes)
    {
        mnl_attr_put(m_message, type, static_cast<size_t>(bytes.size()), bytes.constData());
    }

    void putByte(std::uint16_t type, int value)
    {
        putAttribute(type, QByteArray(1, static_cast<char>(value)));
    }

    const nlmsghdr &header() const { return *m_message; }

private:
    alignas(nlmsghdr) std::array<char, 1024> m_buffer = {};
    nlmsghdr *m_message;
};

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

Message linkMessage(std::uint16_t type, unsigned flags)
{
    Message message(type);
    message.putHeader(linkHeader(flags));
    message.putAttribute(IFLA_IFNAME, QByteArray("wwan0\0", 6));
    return message;
}

Message addressMessage(std::uint16_t type, int family, unsigned char flags,
                       const QByteArray &address)
{
    Message message(type);
    ifaddrmsg header = {};
    header.ifa_family = static_cast<unsigned char>(family);
    header.ifa_prefixlen = 24;
    header.ifa_flags = flags;
    header.ifa_index = 7;
    message.putHeader(header);
    message.putAttribute(IFA_ADDRESS, address);
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

Message linkOfKind(const char *kind)
{
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_LINKINFO | NLA_F_NESTED,
                         attribute(IFLA_INFO_DATA, "data") +
                             attribute(IFLA_INFO_KIND, terminated(kind)));
    return message;
}

constexpr int missing = -1;

std::optional<LinkReport> linkIn(const Message &message)
{
    const auto news = parseLinkMessage(message.header());
    const auto *const report = news ? std::get_if<LinkReport>(&*news) : nullptr;
    return report ? std::optional<LinkReport>(*report) : std::nullopt;
}

AddressReport addressIn(const Message &message)
{
    return std::get<AddressReport>(parseLinkMessage(message.header()).value());
}

const QByteArray ipv4("\x0a\x00\x00\x01", 4);
const QByteArray ipv6("\x20\x01\x0d\xb8\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x01", 16);
const QByteArray ipv6LinkLocal("\xfe\x80\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x01",
                               16);

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
    void readsAnAddress();
    void readsThatAnAddressIsGone();
    void aPeersAddressIsNotTheLinksOwn();
    void anAddressCountsOnceItIsChecked_data();
    void anAddressCountsOnceItIsChecked();
    void tellsLinkLocalAddresses_data();
    void tellsLinkLocalAddresses();
    void readsNothingFromOtherMessages();
    void readsNothingOutsideACutMessage();
};

void LinkMessageTest::readsALink()
{
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
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
    Message message = linkMessage(RTM_NEWLINK, IFF_UP | flags);
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
    Message message(RTM_NEWLINK);
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
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
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
        Message message = linkMessage(RTM_NEWLINK, IFF_UP);
        message.putAttribute(IFLA_LINKINFO | NLA_F_NESTED, whole.left(length));
        QVERIFY(!linkIn(message)->isWwan || length >= NLA_HDRLEN + 5);
    }
}

void LinkMessageTest::readsCountersBeyond32Bits()
{
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, statistics(5000000000, 4294967296));
    QCOMPARE(linkIn(message)->counters->downloaded, std::int64_t{5000000000});
    QCOMPARE(linkIn(message)->counters->uploaded, std::int64_t{4294967296});
}

void LinkMessageTest::holdsAnImpossibleCounterAtTheLargestNumber()
{
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
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
    Message message = linkMessage(RTM_NEWLINK, IFF_UP);
    message.putAttribute(IFLA_STATS64, counters);
    QCOMPARE(linkIn(message)->counters.has_value(), isReadable);
}

void LinkMessageTest::ignoresABridgesNewsOfItsPorts()
{
    Message message(RTM_DELLINK);
    ifinfomsg header = linkHeader(IFF_UP);
    header.ifi_family = AF_BRIDGE;
    message.putHeader(header);
    QVERIFY(!parseLinkMessage(message.header()));
}

void LinkMessageTest::readsAnAddress()
{
    const AddressReport report = addressIn(addressMessage(RTM_NEWADDR, AF_INET, 0, ipv4));
    QCOMPARE(report.linkIndex, 7);
    QVERIFY(report.isThere);
    QVERIFY(!report.isIpv6LinkLocal);
}

void LinkMessageTest::readsThatAnAddressIsGone()
{
    const AddressReport gone = addressIn(addressMessage(RTM_DELADDR, AF_INET, 0, ipv4));
    QVERIFY(!gone.isThere);
    QCOMPARE(gone.address, addressIn(addressMessage(RTM_NEWADDR, AF_INET, 0, ipv4)).address);
    QVERIFY(gone.address != addressIn(addressMessage(RTM_NEWADDR, AF_INET6, 0, ipv6)).address);
}

void LinkMessageTest::aPeersAddressIsNotTheLinksOwn()
{
    Message message = addressMessage(RTM_NEWADDR, AF_INET6, 0, ipv6);
    message.putAttribute(IFA_LOCAL, ipv6LinkLocal);
    QVERIFY(addressIn(message).isIpv6LinkLocal);
}

void LinkMessageTest::anAddressCountsOnceItIsChecked_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("checked") << int{IFA_F_PERMANENT} << true;
    QTest::newRow("being checked") << int{IFA_F_TENTATIVE} << false;
    QTest::newRow("being checked but in use") << int{IFA_F_TENTATIVE | IFA_F_OPTIMISTIC} << true;
    QTest::newRow("a duplicate") << int{IFA_F_DADFAILED} << false;
}

void LinkMessageTest::anAddressCountsOnceItIsChecked()
{
    QFETCH(int, flags);
    QFETCH(bool, isThere);
    const auto byte = static_cast<unsigned char>(flags);
    QCOMPARE(addressIn(addressMessage(RTM_NEWADDR, AF_INET6, byte, ipv6)).isThere, isThere);
}

void LinkMessageTest::tellsLinkLocalAddresses_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<bool>("isLinkLocal");
    QTest::newRow("fe80::1") << AF_INET6 << ipv6LinkLocal << true;
    QTest::newRow("2001:db8::1") << AF_INET6 << ipv6 << false;
    QTest::newRow("febf::") << AF_INET6 << QByteArray("\xfe\xbf") + QByteArray(14, '\0') << true;
    QTest::newRow("fec0::") << AF_INET6 << QByteArray("\xfe\xc0") + QByteArray(14, '\0') << false;
    QTest::newRow("10.0.0.1") << AF_INET << ipv4 << false;
    QTest::newRow("254.128.0.1") << AF_INET << QByteArray("\xfe\x80\x00\x01", 4) << false;
}

void LinkMessageTest::tellsLinkLocalAddresses()
{
    QFETCH(int, family);
    QFETCH(QByteArray, address);
    QFETCH(bool, isLinkLocal);
    QCOMPARE(addressIn(addressMessage(RTM_NEWADDR, family, 0, address)).isIpv6LinkLocal,
             isLinkLocal);
}

void LinkMessageTest::readsNothingFromOtherMessages()
{
    Message message(RTM_NEWROUTE);
    message.putHeader(rtmsg{});
    QVERIFY(!parseLinkMessage(message.header()));
    QVERIFY(!parseLinkMessage(Message(NLMSG_DONE).header()));
}

void LinkMessageTest::readsNothingOutsideACutMessage()
{
    Message complete = linkMessage(RTM_NEWLINK, IFF_UP);
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
