// SPDX-License-Identifier: MIT
#pragma once

#include "LinkMessage.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace recorder
{

/// A network interface as the messages so far tell of it.
struct Link {
    int index = 0;
    std::string name;
    std::vector<std::string> alternativeNames;
    bool isUp = false;
    bool isRunning = false;
    bool isPpp = false;
    bool isWwan = false;
    std::uint32_t carrierLosses = 0;
    LinkCounters counters; ///< at the last message
    /// At the last one before the present connection, or the one that brought the
    /// present names during it.
    LinkCounters idleCounters;

    /// Whether it is a mobile-broadband one: what the kernel takes for that, and
    /// PPP. A driver that says neither is known by the name that systemd gives ("ww").
    bool isMobile() const;
    /// Whether this is its name or one of the alternative ones.
    bool hasName(const std::string &wanted) const;

    /// Whether it can carry traffic for its user: up, running and with an address.
    /// An IPv6 link-local address does not count, for interfaces give themselves
    /// one without any connection; except with PPP, where it comes from the peer's
    /// agreement and may be the only one.
    bool isConnected() const;

    /// Stays the same for as long as the present connection does, whoever looks at
    /// it: a line that was lost, or addresses that are all new, make another one.
    std::string connectionMark() const;

    struct Address {
        bool isIpv6LinkLocal = false;
        std::uint32_t createdAt = 0;
        unsigned dump = 0; ///< see LinkTable
    };
    std::map<std::string, Address> addresses;
    unsigned dump = 0;
};

/// What has become of one link.
struct LinkChange {
    Link link;
    bool isGone = false;
    bool hasFreshCounters = false; ///< the message that told it carried them
};

/// The device type ("wwan", say) that the system tells of the link of this index and
/// name, which the kernel's messages leave out; empty if it has none.
using DeviceTypes = std::function<std::string(int index, const std::string &name)>;

/// The interfaces of the system, brought up to date message by message. While a
/// full dump is being received, what it does not mention is found out: that
/// went away while messages were lost.
class LinkTable
{
public:
    explicit LinkTable(DeviceTypes deviceTypes = {});

    /// Each returns nothing for an interface that is not known.
    std::optional<LinkChange> apply(const LinkReport &report);
    std::optional<LinkChange> apply(const AddressReport &report);

    void beginDump();
    /// Forgets what the dump did not mention, and says so.
    std::vector<LinkChange> endDump();

    std::vector<Link> links() const;
    /// Knows nothing again, as in the beginning.
    void forgetAll();

private:
    Link &linkFor(const LinkReport &report);
    LinkCounters countersBeforeFirstSight(const LinkReport &report) const;

    bool isWwan(const Link &link, const LinkReport &report) const;

    DeviceTypes m_deviceTypes;
    std::map<int, Link> m_links;
    unsigned m_dump = 0;
    bool m_isDumping = false;
    bool m_knowsAll = false; ///< a dump has been complete
};

} // namespace recorder
