// SPDX-License-Identifier: MIT
#include "PppdConnections.h"

#include <algorithm>

namespace refhost
{

namespace
{

using Kind = PppdMessage::Kind;

constexpr const char *neverEnds = "a connection does not end in the log";
constexpr const char *noByteCounts = "a connect time has no byte counts";
constexpr const char *noConnectTime = "byte counts have no connect time";
constexpr const char *unreadableTime = "the time stamp cannot be read";
constexpr const char *outOfRangeReason = "a number or time is out of range";

constexpr std::size_t longestInterface = 31;

bool isStorable(std::int64_t time)
{
    return time >= 0 && time <= largestTime;
}

bool isStorable(const Connection &connection)
{
    return isStorable(connection.startUtc) && isStorable(connection.endUtc) &&
           connection.connectedSeconds >= 0 && connection.uploadedBytes >= 0 &&
           connection.downloadedBytes >= 0 && connection.interfaceName.size() <= longestInterface;
}

} // namespace

PppdConnections::PppdConnections(const YearResolver &years, std::string fallbackProfile)
    : m_years(years)
    , m_fallbackProfile(std::move(fallbackProfile))
{
}

void PppdConnections::takeAll(const std::vector<PppdEvent> &events)
{
    for (const PppdEvent &event : events)
        take(event);
    for (auto &[pid, dial] : m_dials)
        abandon(dial);
    std::sort(m_unusable.begin(), m_unusable.end(),
              [](const Unusable &left, const Unusable &right) {
                  return left.firstLine < right.firstLine;
              });
}

void PppdConnections::take(const PppdEvent &event)
{
    if (isOfConnection(event.message) && !event.time)
        count(unreadableTime, event);
    Dial &dial = m_dials[event.pid];
    switch (event.message.kind) {
    case Kind::Connect:
        connect(dial, event);
        break;
    case Kind::LocalAddress:
        if (!dial.localAddress && event.time)
            dial.localAddress = &event;
        break;
    case Kind::ConnectTime:
        noteConnectTime(dial, event);
        break;
    case Kind::ByteCounts:
        finish(dial, event);
        break;
    case Kind::Exit:
        abandon(dial);
        m_apns.exits(event.pid);
        break;
    default:
        takeApn(event);
    }
}

void PppdConnections::takeApn(const PppdEvent &event)
{
    switch (event.message.kind) {
    case Kind::PppdApn:
        m_apns.pppdNames(event.pid, event.message.text);
        break;
    case Kind::ChatApn:
        m_apns.chatSends(event.pid, event.message.text);
        break;
    case Kind::ChatFailed:
        m_apns.chatFails(event.pid);
        break;
    case Kind::ScriptFailed:
        m_apns.scriptFails(event.pid);
        break;
    default:
        break;
    }
}

void PppdConnections::connect(Dial &dial, const PppdEvent &event)
{
    abandon(dial);
    dial.connect = &event;
    m_apns.connects(event.pid);
}

void PppdConnections::noteConnectTime(Dial &dial, const PppdEvent &event)
{
    if (dial.connectTime)
        abandon(dial);
    dial.connectTime = &event;
}

void PppdConnections::finish(Dial &dial, const PppdEvent &byteCounts)
{
    if (!dial.connectTime)
        count(noConnectTime, byteCounts);
    else if (dial.connectTime->time)
        store(dial, byteCounts);
    dial = {};
    m_apns.disconnects(byteCounts.pid);
}

void PppdConnections::abandon(Dial &dial)
{
    if (dial.connectTime)
        count(noByteCounts, *dial.connectTime);
    else if (dial.connect || dial.localAddress)
        count(neverEnds, dial.connect ? *dial.connect : *dial.localAddress);
    dial = {};
}

void PppdConnections::store(const Dial &dial, const PppdEvent &byteCounts)
{
    const PppdEvent &end = *dial.connectTime;
    Connection connection;
    connection.endUtc = m_years.utc(*end.time, end.run);
    connection.connectedSeconds = end.message.seconds;
    connection.startUtc = startOf(dial, connection.endUtc);
    connection.uploadedBytes = byteCounts.message.sent;
    connection.downloadedBytes = byteCounts.message.received;
    connection.interfaceName = dial.connect ? dial.connect->message.text : std::string();
    const ProfileSource source = nameProfile(connection, end.pid);
    if (!isStorable(connection)) {
        count(outOfRangeReason,
              connection.uploadedBytes < 0 || connection.downloadedBytes < 0 ? byteCounts : end);
        return;
    }
    m_connections.push_back(std::move(connection));
    m_profileSources.push_back(source);
}

std::int64_t PppdConnections::startOf(const Dial &dial, std::int64_t endUtc) const
{
    for (const PppdEvent *const event : {dial.localAddress, dial.connect}) {
        const auto start =
            event && event->time ? m_years.utc(*event->time, event->run) : endUtc + 1;
        // A start after the end comes from a clock that was set meanwhile.
        if (start <= endUtc)
            return start;
    }
    return endUtc - dial.connectTime->message.seconds;
}

ProfileSource PppdConnections::nameProfile(Connection &connection, std::int64_t pid) const
{
    connection.profile = m_apns.apnOf(pid);
    if (!connection.profile.empty())
        return ProfileSource::Log;
    connection.profile = m_fallbackProfile;
    if (!connection.profile.empty())
        return ProfileSource::Option;
    connection.profile = placeholderProfile(connection.interfaceName);
    return ProfileSource::Placeholder;
}

void PppdConnections::count(const char *reason, const PppdEvent &event)
{
    auto entry = std::find_if(m_unusable.begin(), m_unusable.end(),
                              [reason](const Unusable &known) { return known.reason == reason; });
    if (entry == m_unusable.end())
        entry = m_unusable.insert(entry, {reason, 0, event.line, event.lineText});
    ++entry->count;
    // What never ends is noticed in no order.
    if (event.line < entry->firstLine) {
        entry->firstLine = event.line;
        entry->firstText = event.lineText;
    }
}

} // namespace refhost
