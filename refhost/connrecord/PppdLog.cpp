// SPDX-License-Identifier: MIT
#include "PppdLog.h"

#include "LineReader.h"
#include "LogLine.h"

#include <algorithm>

namespace refhost
{

namespace
{

using Kind = PppdMessage::Kind;

constexpr std::size_t longestQuotedText = 240;
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
    TextScanner scanner(line.message);
    for (int i = 0; i < mostWordsBeforeMessage; ++i) {
        if (auto message = parsePppdMessage(scanner.rest()))
            return message;
        scanner.takeWord();
        scanner.takeSpaces();
    }
    return std::nullopt;
}

/// The messages of one program, and those that may be copies of them.
class Sources
{
public:
    explicit Sources(std::string_view program)
        : m_program(program)
    {
    }

    void add(std::string_view process, PppdEvent event)
    {
        if (process == m_program)
            m_own.push_back(std::move(event));
        else
            m_copies.push_back(std::move(event));
    }

    bool hasOwn(bool (*isMeant)(const PppdMessage &)) const
    {
        return std::any_of(m_own.begin(), m_own.end(),
                           [isMeant](const PppdEvent &event) { return isMeant(event.message); });
    }

    void moveTo(std::vector<PppdEvent> &events, bool own)
    {
        for (PppdEvent &event : own ? m_own : m_copies)
            events.push_back(std::move(event));
    }

private:
    std::string_view m_program;
    std::vector<PppdEvent> m_own;
    std::vector<PppdEvent> m_copies;
};

} // namespace

PppdLog readPppdLog(LineReader &lines, const ReadProgress &progress)
{
    PppdLog log;
    Sources pppd("pppd");
    Sources chat("chat");
    while (lines.next()) {
        const LogLine line = parseLogLine(lines.line());
        if (line.time)
            log.end = line.time;
        if (auto message = messageIn(line)) {
            Sources &program = isOfChat(*message) ? chat : pppd;
            program.add(line.process, {std::move(*message), line.time, line.pid, lines.lineNumber(),
                                       std::string(lines.line().substr(0, longestQuotedText))});
        }
        progress(lines.bytesRead());
    }
    pppd.moveTo(log.events, pppd.hasOwn(isOfConnection));
    chat.moveTo(log.events, chat.hasOwn(isOfChat));
    std::sort(log.events.begin(), log.events.end(),
              [](const PppdEvent &left, const PppdEvent &right) { return left.line < right.line; });
    return log;
}

} // namespace refhost
