// SPDX-License-Identifier: MIT
// The kernel's messages about interfaces and addresses, and what the recorder makes of
// them. An input is a row of messages: one byte for the type, two for the length of
// what is behind the header, then that. Other types begin and end a dump.
#include "ByteReader.h"
#include "Fuzz.h"
#include "recorder/LinkMessage.h"
#include "recorder/LinkTable.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>

#include <cstring>
#include <memory>
#include <variant>

using namespace recorder;

namespace
{

/// In memory of its own size, so that reading beyond it is noticed. Messages are filled up
/// to a multiple of four bytes, as in the buffer of the recorder's socket.
std::unique_ptr<char[]> messageOf(std::uint16_t type, const std::string &payload)
{
    const std::size_t size = NLMSG_HDRLEN + payload.size();
    auto message = std::make_unique<char[]>(NLMSG_ALIGN(size));
    nlmsghdr header = {};
    header.nlmsg_len = static_cast<std::uint32_t>(size);
    header.nlmsg_type = type;
    std::memcpy(message.get(), &header, sizeof header);
    std::memcpy(message.get() + NLMSG_HDRLEN, payload.data(), payload.size());
    return message;
}

void checkReport(const LinkReport &report, std::size_t size)
{
    fuzz::require(report.name.find('\0') == std::string::npos, "a name ends at its terminator");
    fuzz::require(report.name.size() + report.alternativeNames.size() <= size,
                  "names come from the message");
    if (report.counters)
        fuzz::require(report.counters->uploaded >= 0 && report.counters->downloaded >= 0,
                      "nothing less than no byte is moved");
}

void checkReport(const AddressReport &report, std::size_t size)
{
    fuzz::require(report.address.size() >= 2 && report.address.size() <= 2 * size,
                  "an address comes from the message");
}

void checkTable(const LinkTable &table)
{
    for (const Link &link : table.links()) {
        fuzz::require(!link.isConnected() || (link.isUp && link.isRunning), "a line that is up");
        fuzz::require(link.counters.uploaded >= 0 && link.counters.downloaded >= 0 &&
                          link.idleCounters.uploaded >= 0 && link.idleCounters.downloaded >= 0,
                      "counters are not negative");
    }
}

void take(LinkTable &table, std::uint16_t type, const std::string &payload)
{
    const auto message = messageOf(type, payload);
    const auto news = parseLinkMessage(*reinterpret_cast<const nlmsghdr *>(message.get()));
    if (!news)
        return;
    std::visit(
        [&](const auto &report) {
            checkReport(report, payload.size());
            const auto change = table.apply(report);
            fuzz::require(!change || change->link.index != 0 || payload.size() >= 8,
                          "a change is of a link");
        },
        *news);
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::uint16_t types[] = {RTM_NEWLINK, RTM_DELLINK, RTM_NEWADDR, RTM_DELADDR};
    fuzz::ByteReader bytes(data, size);
    LinkTable table;
    while (!bytes.isAtEnd()) {
        const int type = bytes.below(6);
        if (type == 4)
            table.beginDump();
        else if (type == 5)
            table.endDump();
        else
            take(table, types[type], bytes.text(static_cast<std::size_t>(bytes.number(2))));
        checkTable(table);
    }
    return 0;
}
