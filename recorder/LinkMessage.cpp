// SPDX-License-Identifier: MIT
#include "LinkMessage.h"

#include <libmnl/libmnl.h>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if_arp.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

namespace recorder
{

namespace
{

/// The message's fixed part, or null if it is too short for it.
template <typename Header>
const Header *headerOf(const nlmsghdr &message)
{
    return mnl_nlmsg_get_payload_len(&message) >= sizeof(Header)
               ? static_cast<const Header *>(mnl_nlmsg_get_payload(&message))
               : nullptr;
}

template <typename Visit>
int visitAttribute(const nlattr *attribute, void *visit)
{
    (*static_cast<Visit *>(visit))(*attribute);
    return MNL_CB_OK;
}

template <typename Header, typename Visit>
void visitAttributes(const nlmsghdr &message, Visit visit)
{
    mnl_attr_parse(&message, sizeof(Header), visitAttribute<Visit>, &visit);
}

/// Visits the attributes within another one.
template <typename Visit>
void visitNested(const nlattr &attribute, Visit visit)
{
    mnl_attr_parse_nested(&attribute, visitAttribute<Visit>, &visit);
}

std::string bytesOf(const nlattr &attribute)
{
    return {static_cast<const char *>(mnl_attr_get_payload(&attribute)),
            mnl_attr_get_payload_len(&attribute)};
}

/// The text up to its terminator, if it has one.
std::string textOf(const nlattr &attribute)
{
    const std::string bytes = bytesOf(attribute);
    return bytes.substr(0, bytes.find('\0'));
}

/// A counter of the kernel's statistics, which may lie at odd addresses.
std::int64_t counterAt(const nlattr &statistics, std::size_t offset)
{
    std::uint64_t value = 0;
    std::memcpy(&value, static_cast<const char *>(mnl_attr_get_payload(&statistics)) + offset,
                sizeof(value));
    constexpr std::uint64_t maximum = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(std::min(value, maximum));
}

std::optional<LinkCounters> countersIn(const nlattr &statistics)
{
    constexpr std::size_t sent = offsetof(rtnl_link_stats64, tx_bytes);
    constexpr std::size_t received = offsetof(rtnl_link_stats64, rx_bytes);
    static_assert(sent > received);
    // Newer kernels append counters, so only the ones in use must be there.
    if (mnl_attr_get_payload_len(&statistics) < sent + sizeof(std::uint64_t))
        return std::nullopt;
    return LinkCounters{counterAt(statistics, sent), counterAt(statistics, received)};
}

/// A value that may lie at odd addresses; 0 if it is cut off.
std::uint32_t numberAt(const nlattr &attribute, std::size_t offset)
{
    std::uint32_t value = 0;
    if (mnl_attr_get_payload_len(&attribute) >= offset + sizeof(value))
        std::memcpy(&value, static_cast<const char *>(mnl_attr_get_payload(&attribute)) + offset,
                    sizeof(value));
    return value;
}

std::optional<std::uint8_t> byteIn(const nlattr &attribute)
{
    if (mnl_attr_get_payload_len(&attribute) < 1)
        return std::nullopt;
    return *static_cast<const std::uint8_t *>(mnl_attr_get_payload(&attribute));
}

/// What a link's message says of its line, in three places.
struct LineState {
    unsigned flags = 0;
    std::optional<std::uint8_t> operational;
    std::uint8_t mode = IF_LINK_MODE_DEFAULT;

    /// Whether traffic can pass. The kernel may take a second to work out that the
    /// operational state of a link with a carrier is "up", and some drivers leave it
    /// "unknown" for ever; both count. A link that waits for an event outside, as for
    /// the network's leave, does not, though it has a carrier: until that event, what
    /// it moves is nobody's traffic.
    bool isRunning() const
    {
        if ((flags & IFF_RUNNING) != 0 || operational == IF_OPER_UNKNOWN)
            return true;
        const bool isWaiting = (flags & IFF_DORMANT) != 0 || operational == IF_OPER_DORMANT ||
                               operational == IF_OPER_TESTING || mode != IF_LINK_MODE_DEFAULT;
        return (flags & IFF_LOWER_UP) != 0 && !isWaiting;
    }
};

void readKind(const nlattr &attribute, LinkReport &report)
{
    if (mnl_attr_get_type(&attribute) != IFLA_INFO_KIND)
        return;
    const std::string kind = textOf(attribute);
    report.isPpp |= kind == "ppp";
    report.isWwan |= kind == "wwan";
}

void readAlternativeName(const nlattr &attribute, LinkReport &report)
{
    if (mnl_attr_get_type(&attribute) == IFLA_ALT_IFNAME)
        report.alternativeNames.push_back(textOf(attribute));
}

void readLinkAttribute(const nlattr &attribute, LinkReport &report, LineState &line)
{
    switch (mnl_attr_get_type(&attribute)) {
    case IFLA_IFNAME:
        report.name = textOf(attribute);
        break;
    case IFLA_PROP_LIST:
        visitNested(attribute, [&](const nlattr &nested) { readAlternativeName(nested, report); });
        break;
    case IFLA_LINKINFO:
        visitNested(attribute, [&](const nlattr &nested) { readKind(nested, report); });
        break;
    case IFLA_STATS64:
        report.counters = countersIn(attribute);
        break;
    case IFLA_CARRIER_DOWN_COUNT:
        report.carrierLosses = numberAt(attribute, 0);
        break;
    case IFLA_OPERSTATE:
        line.operational = byteIn(attribute);
        break;
    case IFLA_LINKMODE:
        line.mode = byteIn(attribute).value_or(line.mode);
        break;
    }
}

std::optional<LinkNews> parseLink(const nlmsghdr &message)
{
    const auto *const header = headerOf<ifinfomsg>(message);
    if (!header || header->ifi_family != AF_UNSPEC)
        return std::nullopt;
    LinkReport report;
    LineState line;
    line.flags = header->ifi_flags;
    report.index = header->ifi_index;
    report.isGone = message.nlmsg_type == RTM_DELLINK;
    report.isUp = (header->ifi_flags & IFF_UP) != 0;
    report.isPpp = header->ifi_type == ARPHRD_PPP;
    visitAttributes<ifinfomsg>(
        message, [&](const nlattr &attribute) { readLinkAttribute(attribute, report, line); });
    report.isRunning = line.isRunning();
    return report;
}

bool isIpv6LinkLocal(int family, const std::string &address)
{
    return family == AF_INET6 && address.size() == 16 && address[0] == '\xfe' &&
           (static_cast<unsigned char>(address[1]) & 0xc0U) == 0x80U;
}

/// An address that is still being checked cannot be used, one that turned out
/// to be a duplicate never.
bool isUsable(unsigned flags)
{
    const bool isUnchecked = (flags & IFA_F_TENTATIVE) != 0 && (flags & IFA_F_OPTIMISTIC) == 0;
    return !isUnchecked && (flags & IFA_F_DADFAILED) == 0;
}

std::optional<LinkNews> parseAddress(const nlmsghdr &message)
{
    const auto *const header = headerOf<ifaddrmsg>(message);
    if (!header)
        return std::nullopt;
    // On a point-to-point link, the address is the peer's and the local one is
    // this machine's; elsewhere only one of them may be there.
    std::string address;
    std::string local;
    AddressReport report;
    visitAttributes<ifaddrmsg>(message, [&](const nlattr &attribute) {
        if (mnl_attr_get_type(&attribute) == IFA_ADDRESS)
            address = bytesOf(attribute);
        else if (mnl_attr_get_type(&attribute) == IFA_LOCAL)
            local = bytesOf(attribute);
        else if (mnl_attr_get_type(&attribute) == IFA_CACHEINFO)
            report.createdAt = numberAt(attribute, offsetof(ifa_cacheinfo, cstamp));
    });
    const std::string &own = local.empty() ? address : local;
    report.linkIndex = static_cast<int>(header->ifa_index);
    report.address = std::string{static_cast<char>(header->ifa_family),
                                 static_cast<char>(header->ifa_prefixlen)} +
                     own + address;
    report.isThere = message.nlmsg_type == RTM_NEWADDR && isUsable(header->ifa_flags);
    report.isIpv6LinkLocal = isIpv6LinkLocal(header->ifa_family, own);
    return report;
}

} // namespace

std::optional<LinkNews> parseLinkMessage(const nlmsghdr &message)
{
    switch (message.nlmsg_type) {
    case RTM_NEWLINK:
    case RTM_DELLINK:
        return parseLink(message);
    case RTM_NEWADDR:
    case RTM_DELADDR:
        return parseAddress(message);
    default:
        return std::nullopt;
    }
}

} // namespace recorder
