// SPDX-License-Identifier: MIT
#pragma once

#include "LinkMessage.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace refhost
{

/// A network interface as the messages so far tell of it.
struct Link {
    int index = 0;
    std::string name;
    bool isUp = false;
    bool isRunning = false;
    bool isPpp = false;
    std::uint32_t carrierLosses = 0;
    LinkCounters counters;     ///< at the last message
    LinkCounters idleCounters; ///< at the last one before the present connection

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
        unsigned listing = 0; ///< see LinkTable
    };
    std::map<std::string, Address> addresses;
    unsigned listing = 0;
};

/// What has become of one link.
struct LinkChange {
    Link link;
    bool isGone = false;
    bool hasFreshCounters = false; ///< the message that told it carried them
};

/// The interfaces of the system, brought up to date message by message. While a
/// full listing is being received, what it does not mention is found out: that
/// went away while messages were lost.
class LinkTable
{
public:
    /// Each returns nothing for an interface that is not known.
    std::optional<LinkChange> apply(const LinkReport &report);
    std::optional<LinkChange> apply(const AddressReport &report);

    void beginListing();
    /// Forgets what the listing did not mention, and says so.
    std::vector<LinkChange> endListing();

    std::vector<Link> links() const;

private:
    Link &linkFor(const LinkReport &report);
    LinkCounters countersBeforeFirstSight(const LinkReport &report) const;

    std::map<int, Link> m_links;
    unsigned m_listing = 0;
    bool m_isListing = false;
    bool m_knowsAll = false; ///< a listing has been complete
};

} // namespace refhost
