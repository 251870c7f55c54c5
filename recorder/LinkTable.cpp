// SPDX-License-Identifier: MIT
#include "LinkTable.h"

#include <algorithm>
#include <utility>

namespace recorder
{

namespace
{

bool hasNewNames(const LinkReport &report, const Link &link)
{
    const bool isRenamed = !report.name.empty() && report.name != link.name;
    return isRenamed || report.alternativeNames != link.alternativeNames;
}

} // namespace

bool Link::isMobile() const
{
    return isPpp || isWwan || name.rfind("ww", 0) == 0;
}

bool Link::hasName(const std::string &wanted) const
{
    return name == wanted || std::find(alternativeNames.begin(), alternativeNames.end(), wanted) !=
                                 alternativeNames.end();
}

bool Link::isConnected() const
{
    return isUp && isRunning &&
           std::any_of(addresses.begin(), addresses.end(), [this](const auto &entry) {
               return isPpp || !entry.second.isIpv6LinkLocal;
           });
}

std::string Link::connectionMark() const
{
    const auto oldest =
        std::min_element(addresses.begin(), addresses.end(), [](const auto &a, const auto &b) {
            return a.second.createdAt < b.second.createdAt;
        });
    const std::uint32_t since = oldest == addresses.end() ? 0 : oldest->second.createdAt;
    return std::to_string(carrierLosses) + '/' + std::to_string(since);
}

LinkTable::LinkTable(DeviceTypes deviceTypes)
    : m_deviceTypes(std::move(deviceTypes))
{
}

std::optional<LinkChange> LinkTable::apply(const LinkReport &report)
{
    if (report.isGone && m_links.count(report.index) == 0)
        return std::nullopt;
    Link &link = linkFor(report);
    // Taken from the message before: what has passed since belongs to the
    // connection that this message may tell of.
    if (!link.isConnected())
        link.idleCounters = link.counters;
    else if (hasNewNames(report, link))
        link.idleCounters = report.counters.value_or(link.counters);
    link.isWwan = isWwan(link, report);
    link.name = report.name.empty() ? link.name : report.name;
    link.alternativeNames = report.alternativeNames;
    link.isUp = report.isUp;
    link.isRunning = report.isRunning;
    link.isPpp = report.isPpp;
    link.carrierLosses = report.carrierLosses;
    link.counters = report.counters.value_or(link.counters);
    link.dump = m_dump;
    const LinkChange change = {link, report.isGone, report.counters.has_value()};
    if (report.isGone)
        m_links.erase(report.index);
    return change;
}

/// The system is asked under each new name, for the link may have got that one while
/// the question for the former one was on its way.
bool LinkTable::isWwan(const Link &link, const LinkReport &report) const
{
    const bool isAskable = m_deviceTypes && hasNewNames(report, link);
    return link.isWwan || report.isWwan ||
           (isAskable && m_deviceTypes(report.index, report.name) == "wwan");
}

Link &LinkTable::linkFor(const LinkReport &report)
{
    const auto [found, isNew] = m_links.try_emplace(report.index);
    if (isNew) {
        found->second.index = report.index;
        found->second.counters = countersBeforeFirstSight(report);
    }
    return found->second;
}

/// A link in the first complete dump may have lived long before, unless it is a
/// PPP one, which is made for its connection. One that a later dump shows was
/// made while messages were lost. In both cases all that it has moved is new.
LinkCounters LinkTable::countersBeforeFirstSight(const LinkReport &report) const
{
    const bool isMadeForItsConnection = report.isPpp || m_knowsAll;
    return m_isDumping && isMadeForItsConnection ? LinkCounters()
                                                 : report.counters.value_or(LinkCounters());
}

std::optional<LinkChange> LinkTable::apply(const AddressReport &report)
{
    const auto found = m_links.find(report.linkIndex);
    if (found == m_links.end())
        return std::nullopt;
    Link &link = found->second;
    // A dump tells of addresses after the links, long after they came.
    if (!link.isConnected() && !m_isDumping)
        link.idleCounters = link.counters;
    if (report.isThere)
        link.addresses[report.address] = {report.isIpv6LinkLocal, report.createdAt, m_dump};
    else
        link.addresses.erase(report.address);
    return LinkChange{link, false, false};
}

void LinkTable::beginDump()
{
    ++m_dump;
    m_isDumping = true;
}

std::vector<LinkChange> LinkTable::endDump()
{
    m_isDumping = false;
    m_knowsAll = true;
    std::vector<LinkChange> changes;
    for (auto entry = m_links.begin(); entry != m_links.end();) {
        Link &link = entry->second;
        const bool isGone = link.dump != m_dump;
        const std::size_t addressesBefore = link.addresses.size();
        for (auto address = link.addresses.begin(); address != link.addresses.end();)
            address =
                address->second.dump == m_dump ? std::next(address) : link.addresses.erase(address);
        if (isGone || link.addresses.size() != addressesBefore)
            changes.push_back({link, isGone, false});
        entry = isGone ? m_links.erase(entry) : std::next(entry);
    }
    return changes;
}

void LinkTable::forgetAll()
{
    m_links.clear();
    m_isDumping = false;
    m_knowsAll = false;
}

std::vector<Link> LinkTable::links() const
{
    std::vector<Link> links;
    for (const auto &entry : m_links)
        links.push_back(entry.second);
    return links;
}

} // namespace recorder
