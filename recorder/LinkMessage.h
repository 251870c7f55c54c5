// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct nlmsghdr;

namespace recorder
{

/// The bytes that an interface has moved, as its 64-bit counters show them.
struct LinkCounters {
    std::int64_t uploaded = 0;   ///< sent by this machine (tx)
    std::int64_t downloaded = 0; ///< received by this machine (rx)
};

/// What one message of the kernel says about an interface.
struct LinkReport {
    int index = 0; ///< the kernel's number of the interface
    std::string name;
    std::vector<std::string> alternativeNames;
    bool isGone = false;    ///< the interface has been removed
    bool isUp = false;      ///< switched on
    bool isRunning = false; ///< its line is there, and waits for nobody's leave
    bool isPpp = false;
    bool isWwan = false;                  ///< of a kind that the kernel calls so
    std::uint32_t carrierLosses = 0;      ///< how often its line has been gone
    std::optional<LinkCounters> counters; ///< at the time of the message
};

/// What one message of the kernel says about an address of an interface.
struct AddressReport {
    int linkIndex = 0;
    std::string address;  ///< family, prefix and bytes: equal for the same address only
    bool isThere = false; ///< false too while it is being checked for duplicates
    bool isIpv6LinkLocal = false;
    std::uint32_t createdAt = 0; ///< when it was given, on the kernel's own clock
};

using LinkNews = std::variant<LinkReport, AddressReport>;

/// What a message of a route socket says, or nothing if it is about something
/// else or cut off. A bridge's news about its ports look like links that come
/// and go, and are not.
std::optional<LinkNews> parseLinkMessage(const nlmsghdr &message);

} // namespace recorder
