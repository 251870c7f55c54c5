// SPDX-License-Identifier: MIT
#include "PppdConnections.h"

#include <algorithm>

namespace formats
{

namespace
{

using Kind = PppdMessage::Kind;
using history::Translatable;
using history::translatable;

constexpr Translatable neverEnds = translatable("formats", "a connection does not end in the log");
constexpr Translatable noByteCounts = translatable("formats", "a connect time has no byte counts");
constexpr Translatable noConnectTime = translatable("formats", "byte counts have no connect time");
constexpr Translatable unreadableTime = translatable("formats", "the time stamp cannot be read");
constexpr Translatable outOfRangeReason =
    translatable("formats", "a number or time is out of range");

constexpr std::size_t longestInterface = 31;
/// How a connection ended whose process says nothing else before its own end.
constexpr const char *endedByExit = "exit";

bool isStorable(std::int64_t time)
{
    return time >= 0 && time <= history::largestTime;
}

bool isStorable(const history::Connection &connection)
{
    return isStorable(connection.startUtc) && isStorable(connection.endUtc) &&
           connection.connectedSeconds >= 0 && connection.uploadedBytes >= 0 &&
           connection.downloadedBytes >= 0 && connection.interfaceName.size() <= longestInterface;
}

} // namespace

PppdConnections::PppdConnections(std::string fallbackProfile)
    : m_fallbackProfile(std::move(fallbackProfile))
{
}

void PppdConnections::takeAll(const std::vector<PppdEvent> &events)
{
    for (const PppdEvent &event : events)
        take(event);
    for (auto &[name, host] : m_hosts) {
        for (auto &[pid, dial] : host.dials)
            abandon(dial);
    }
    std::sort(m_unusable.begin(), m_unusable.end(),
              [](const Unusable &left, const Unusable &right) {
                  return left.firstPlace < right.firstPlace;
              });
}

void PppdConnections::take(const PppdEvent &event)
{
    if (isOfConnection(event.message) && !event.utc)
        count(unreadableTime, event);
    Host &host = m_hosts[event.host];
    Dial &dial = host.dials[event.pid];
    switch (event.message.kind) {
    case Kind::Connect:
        connect(dial, event);
        host.apns.connects(event.pid);
        break;
    case Kind::LocalAddress:
        if (!dial.localAddress && event.utc)
            dial.localAddress = &event;
        break;
    case Kind::ConnectTime:
        noteConnectTime(dial, event);
        break;
    case Kind::ByteCounts:
        finish(dial, event, host.apns.apnOf(event.pid));
        host.apns.disconnects(event.pid);
        break;
    case Kind::Ending:
        noteEnding(dial, event);
        break;
    case Kind::Exit:
        exit(dial);
        host.apns.exits(event.pid);
        break;
    default:
        takeApn(host.apns, event);
    }
}

void PppdConnections::takeApn(ApnTracker &apns, const PppdEvent &event)
{
    switch (event.message.kind) {
    case Kind::PppdApn:
        apns.pppdNames(event.pid, event.message.text);
        break;
    case Kind::ChatApn:
        apns.chatSends(event.pid, event.message.text);
        break;
    case Kind::ChatFailed:
        apns.chatFails(event.pid);
        break;
    case Kind::ScriptFailed:
        apns.scriptFails(event.pid);
        break;
    default:
        break;
    }
}

void PppdConnections::connect(Dial &dial, const PppdEvent &event)
{
    abandon(dial);
    dial.connect = &event;
}

void PppdConnections::noteConnectTime(Dial &dial, const PppdEvent &event)
{
    if (dial.connectTime)
        abandon(dial);
    dial.connectTime = &event;
}

void PppdConnections::noteEnding(Dial &dial, const PppdEvent &event)
{
    // The first reason is the cause; what follows comes from it.
    if (dial.finished)
        m_connections[*dial.finished].ending = event.message.text;
    else if (!dial.ending)
        dial.ending = &event;
    dial.finished.reset();
}

void PppdConnections::finish(Dial &dial, const PppdEvent &byteCounts, const std::string &apn)
{
    std::optional<std::size_t> stored;
    if (!dial.connectTime)
        count(noConnectTime, byteCounts);
    else if (dial.connectTime->utc)
        stored = store(dial, byteCounts, apn);
    const bool isEndingKnown = dial.ending;
    dial = {};
    if (!isEndingKnown)
        dial.finished = stored;
}

void PppdConnections::exit(Dial &dial)
{
    if (dial.finished)
        m_connections[*dial.finished].ending = endedByExit;
    abandon(dial);
}

void PppdConnections::abandon(Dial &dial)
{
    if (dial.connectTime)
        count(noByteCounts, *dial.connectTime);
    else if (dial.connect || dial.localAddress)
        count(neverEnds, dial.connect ? *dial.connect : *dial.localAddress);
    dial = {};
}

std::optional<std::size_t> PppdConnections::store(const Dial &dial, const PppdEvent &byteCounts,
                                                  const std::string &apn)
{
    const PppdEvent &end = *dial.connectTime;
    history::Connection connection;
    connection.endUtc = *end.utc;
    connection.connectedSeconds = end.message.seconds;
    connection.startUtc = startOf(dial, connection);
    connection.uploadedBytes = byteCounts.message.sent;
    connection.downloadedBytes = byteCounts.message.received;
    connection.interfaceName = dial.connect ? dial.connect->message.text : std::string();
    if (dial.ending)
        connection.ending = dial.ending->message.text;
    const ProfileSource source = nameProfile(connection, apn);
    if (!isStorable(connection)) {
        count(outOfRangeReason,
              connection.uploadedBytes < 0 || connection.downloadedBytes < 0 ? byteCounts : end);
        return std::nullopt;
    }
    m_connections.push_back(std::move(connection));
    m_profileSources.push_back(source);
    return m_connections.size() - 1;
}

std::int64_t PppdConnections::startOf(const Dial &dial, const history::Connection &connection) const
{
    for (const PppdEvent *const event : {dial.localAddress, dial.connect}) {
        if (!event || !event->utc)
            continue;
        // A start after the end, or far away, comes from a clock that was set meanwhile.
        const std::int64_t start = *event->utc;
        if (start <= connection.endUtc && isPlausibleStart(start, connection))
            return start;
    }
    return connection.endUtc - connection.connectedSeconds;
}

ProfileSource PppdConnections::nameProfile(history::Connection &connection,
                                           const std::string &apn) const
{
    connection.profile = apn;
    if (!connection.profile.empty())
        return ProfileSource::Log;
    connection.profile = m_fallbackProfile;
    if (!connection.profile.empty())
        return ProfileSource::Option;
    connection.profile = placeholderProfile(connection.interfaceName);
    return ProfileSource::Placeholder;
}

void PppdConnections::count(Translatable reason, const PppdEvent &event)
{
    auto entry =
        std::find_if(m_unusable.begin(), m_unusable.end(), [reason](const Unusable &known) {
            return known.reason.text.text == reason.text;
        });
    if (entry == m_unusable.end())
        entry = m_unusable.insert(entry,
                                  {reason, 0, event.place, event.file, event.line, event.lineText});
    ++entry->count;
    // What never ends is noticed in no order.
    if (event.place < entry->firstPlace) {
        entry->firstPlace = event.place;
        entry->firstFile = event.file;
        entry->firstLine = event.line;
        entry->firstText = event.lineText;
    }
}

} // namespace formats
