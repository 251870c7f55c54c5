// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace history
{

/// The last second that the store keeps, 2106-02-07 06:28:15 UTC, and the longest
/// time connected: the callers of the statistics SDK count in 32 bits.
constexpr std::int64_t largestTime = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t largestDuration = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t largestByteCount = std::numeric_limits<std::int64_t>::max();

/// The most bytes that a profile, an operator's name and the shorter texts may have.
constexpr std::size_t longestProfile = 1048576;
constexpr std::size_t longestOperator = 255;
constexpr std::size_t longestShortText = 31;

/// What a connection's roaming may say; empty if it is unknown.
constexpr const char *atHome = "home";
constexpr const char *abroad = "roaming";

constexpr std::int64_t secondsPerHour = 3600;

/// The first second of that second's hour of UTC.
constexpr std::int64_t startOfHour(std::int64_t utc)
{
    return utc - utc % secondsPerHour;
}

/// What a connection has moved in one hour of UTC, at home (or where that is unknown)
/// or roaming.
struct HourlyBytes {
    std::int64_t hourUtc = 0; ///< its first second
    bool isRoaming = false;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
};

/// What finished and open connections have in common. Times are seconds since
/// 1970-01-01 00:00 UTC from 0 to largestTime, durations lie between 0 and
/// largestDuration; byte counts are not negative. Texts are UTF-8. Each value but the
/// key has its row in ConnectionFields.h.
struct ConnectionBase {
    std::int64_t key = 0; ///< given by the store, never used twice; 0 before that
    std::string profile;  ///< at most longestProfile bytes
    std::int64_t startUtc = 0;
    std::int64_t connectedSeconds = 0;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
    /// How it ended, or is to end unless something happens; at most longestShortText bytes.
    std::string ending = "normal";
    std::string interfaceName; ///< network interface, as long at most; may be empty
    // Whose it is, as far as known; what is unknown is empty.
    std::string operatorName; ///< at most longestOperator bytes
    std::string operatorCode; ///< MCC and MNC
    std::string sim;          ///< its number (ICCID), which belongs in no log
    std::string roaming;      ///< at the start: atHome or abroad
    std::string technology;   ///< of access: "lte" ...
    /// When its bytes moved; each hour once for home and once for roaming. All hours that
    /// the store has of a connection add up to its byte counts, or there are none. What
    /// is written are those that are given, in the place of what was known of them; the
    /// others stay. In lists of finished connections they are left out.
    std::vector<HourlyBytes> hours;
};

/// One finished connection as the store keeps it.
struct Connection : ConnectionBase {
    std::int64_t endUtc = 0;
};

/// A connection from the moment it begins until it is finished, as the store
/// keeps it for the case that its recorder ends first. It belongs to one link of
/// one run of the system: an interface of the same name that is made anew has
/// another index, and after a restart the boot id is another one. Its profile and the
/// name of its interface may change while it lasts.
struct OpenConnection : ConnectionBase {
    std::string bootId;                     ///< /proc/sys/kernel/random/boot_id
    std::int64_t interfaceIndex = 0;        ///< the kernel's number of the interface
    std::int64_t startBootMilliseconds = 0; ///< CLOCK_BOOTTIME at the start
    std::string linkMark;                   ///< tells this connection of the link from later ones
    /// What the interface's counters show minus this is what the connection has
    /// moved: their values at the start, less (below 0 even) after a reset.
    std::int64_t baseUploaded = 0;
    std::int64_t baseDownloaded = 0;
    std::int64_t updatedUtc = 0; ///< when these values were true
};

/// What a link's counters showed when a recorder saw them last. A number of an
/// interface means something in one run of the system only, its name in all of them.
struct SeenLink {
    std::string bootId;
    std::int64_t interfaceIndex = 0;
    std::string interfaceName;
    std::int64_t uploaded = 0;
    std::int64_t downloaded = 0;
    std::int64_t seenUtc = 0; ///< in the range of Connection's times
};

} // namespace history
