// SPDX-License-Identifier: MIT
#include "PppdLog.h"

#include "LineReader.h"
#include "LogReader.h"

#include <algorithm>
#include <map>
#include <utility>

namespace formats
{

namespace
{

using Kind = PppdMessage::Kind;

/// No name is longer, and no more of a line is shown.
constexpr std::size_t longestText = 240;
/// A message without a process may still have a host and a facility in front.
constexpr int mostWordsBeforeMessage = 5;

bool isOfChat(const PppdMessage &message)
{
    return message.kind == Kind::ChatApn || message.kind == Kind::ChatFailed;
}

std::optional<PppdMessage> messageIn(const LogLine &line)
{
    if (!line.process.empty())
        return parsePppdMessage(line.message);
    usage::TextScanner scanner(line.message);
    for (int i = 0; i < mostWordsBeforeMessage; ++i) {
        if (auto message = parsePppdMessage(scanner.rest()))
            return message;
        scanner.takeWord();
        scanner.takeSpaces();
    }
    return std::nullopt;
}

std::string_view programOf(const PppdEvent &event)
{
    return isOfChat(event.message) ? "chat" : "pppd";
}

bool isUnderItsOwnName(const PppdEvent &event)
{
    return event.process == programOf(event);
}

/// Leaves out the messages of that program under another name than its own, if
/// there is one that `isMeant` under that.
void dropCopiesOf(std::vector<PppdEvent> &events, std::string_view program,
                  bool (*isMeant)(const PppdMessage &))
{
    const bool hasOwn = std::any_of(events.begin(), events.end(), [&](const PppdEvent &event) {
        return programOf(event) == program && isUnderItsOwnName(event) && isMeant(event.message);
    });
    const auto isUnwanted = [&](const PppdEvent &event) {
        return programOf(event) == program && isUnderItsOwnName(event) != hasOwn;
    };
    events.erase(std::remove_if(events.begin(), events.end(), isUnwanted), events.end());
}

PppdEvent eventFrom(const LogReader &reader, PppdMessage message, std::size_t run)
{
    const LogLine &line = reader.entry();
    PppdEvent event;
    event.message = std::move(message);
    event.time = line.time;
    event.run = run;
    event.host = line.host.substr(0, longestText);
    event.process = line.process.substr(0, longestText);
    event.pid = line.pid;
    event.line = reader.lineNumber();
    event.messageText = line.message.substr(0, longestText);
    event.lineText = reader.text().substr(0, longestText);
    return event;
}

/// Whether the newest line is the first. One that is out of order does not make a
/// short log so: pppd tells the bytes behind the connect time.
bool isNewestFirst(const PppdLog &log)
{
    std::map<std::pair<std::string, std::int64_t>, Kind> lastKinds;
    int inOrder = 0;
    int reversed = 0;
    for (const PppdEvent &event : log.events) {
        const Kind kind = event.message.kind;
        if (kind != Kind::ConnectTime && kind != Kind::ByteCounts)
            continue;
        const auto [last, isFirst] = lastKinds.insert({{event.host, event.pid}, kind});
        if (!isFirst && last->second != kind)
            ++(kind == Kind::ByteCounts ? inOrder : reversed);
        last->second = kind;
    }
    const bool isTold = inOrder > 0 || reversed > 0;
    if (isTold)
        return reversed > inOrder && !log.clock.goesForwards();
    return log.clock.goesBackwards();
}

void reverse(PppdLog &log)
{
    log.clock.reverse();
    std::reverse(log.events.begin(), log.events.end());
    for (PppdEvent &event : log.events)
        event.run = log.clock.runs().size() - 1 - event.run;
}

} // namespace

PppdLog readPppdLog(LineReader &lines, std::size_t largestSize)
{
    PppdLog log;
    std::size_t run = 0;
    LogReader reader(lines);
    while (reader.next()) {
        const LogLine &line = reader.entry();
        if (line.time)
            run = log.clock.add(*line.time);
        if (auto message = messageIn(line))
            log.events.push_back(eventFrom(reader, std::move(*message), run));
        if (log.size() > largestSize)
            throw LogTooLarge();
    }
    if (isNewestFirst(log))
        reverse(log);
    return log;
}

void dropCopies(std::vector<PppdEvent> &events)
{
    dropCopiesOf(events, "pppd", isOfConnection);
    dropCopiesOf(events, "chat", isOfChat);
}

} // namespace formats
