// SPDX-License-Identifier: MIT
#include "PppdMessage.h"

#include "Utf8Text.h"
#include "history/Store.h"
#include "usage/CalendarTime.h"
#include "usage/TextScanner.h"

#include <QByteArray>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace formats
{

namespace
{

using Kind = PppdMessage::Kind;

constexpr std::int64_t outOfRange = -1;
/// Of interfaces and APNs; none is that long.
constexpr std::size_t longestName = 240;

PppdMessage messageWithText(Kind kind, std::string_view text)
{
    PppdMessage message;
    message.kind = kind;
    message.text = cleanedUtf8(text.substr(0, longestName));
    return message;
}

PppdMessage plainMessage(Kind kind)
{
    return messageWithText(kind, {});
}

/// Connect: ppp0 <--> /dev/ttyUSB0
std::optional<PppdMessage> parseConnect(usage::TextScanner scanner)
{
    const auto interface = scanner.take("Connect: ") ? scanner.takeUntil(" <--> ") : std::nullopt;
    if (!interface || interface->empty())
        return std::nullopt;
    return messageWithText(Kind::Connect, *interface);
}

/// local  IP address 198.51.100.7, or local  LL address fe80::1
std::optional<PppdMessage> parseLocalAddress(usage::TextScanner scanner)
{
    if (!scanner.take("local") || !scanner.takeSpaces() ||
        (!scanner.take("IP address ") && !scanner.take("LL address ")))
        return std::nullopt;
    return plainMessage(Kind::LocalAddress);
}

std::int64_t secondsOfMinutes(std::string_view minutes)
{
    bool isNumber = false;
    const double value =
        QByteArray(minutes.data(), static_cast<int>(minutes.size())).toDouble(&isNumber);
    const double seconds = std::round(value * 60);
    // Written so that infinity is out of range as well.
    if (!isNumber || !(seconds >= 0 && seconds <= static_cast<double>(history::largestDuration)))
        return outOfRange;
    return static_cast<std::int64_t>(seconds);
}

/// Connect time 12.3 minutes.
std::optional<PppdMessage> parseConnectTime(usage::TextScanner scanner)
{
    const auto minutes =
        scanner.take("Connect time ") ? scanner.takeUntil(" minutes.") : std::nullopt;
    if (!minutes)
        return std::nullopt;
    usage::TextScanner number(*minutes);
    number.take('-');
    if (number.takeDigits().empty() || (number.take('.') && number.takeDigits().empty()) ||
        !number.isAtEnd())
        return std::nullopt;
    PppdMessage message = plainMessage(Kind::ConnectTime);
    message.seconds = secondsOfMinutes(*minutes);
    return message;
}

std::int64_t byteCount(const usage::WholeNumber &number)
{
    return number.isInRange && number.value >= 0 ? number.value : outOfRange;
}

/// Sent 31981 bytes, received 20722 bytes.
std::optional<PppdMessage> parseByteCounts(usage::TextScanner scanner)
{
    const auto sentText =
        scanner.take("Sent ") ? scanner.takeUntil(" bytes, received ") : std::nullopt;
    const auto receivedText = sentText ? scanner.takeUntil(" bytes.") : std::nullopt;
    if (!receivedText)
        return std::nullopt;
    const auto sent = usage::wholeNumber(*sentText);
    const auto received = usage::wholeNumber(*receivedText);
    if (!sent || !received)
        return std::nullopt;
    PppdMessage message = plainMessage(Kind::ByteCounts);
    message.sent = byteCount(*sent);
    message.received = byteCount(*received);
    return message;
}

/// Modem hangup, LCP terminated by peer (reason), or Terminating on signal 15
std::optional<PppdMessage> parseEnding(usage::TextScanner scanner)
{
    if (scanner.take("Modem hangup"))
        return messageWithText(Kind::Ending, "modem hangup");
    if (scanner.take("LCP terminated by peer"))
        return messageWithText(Kind::Ending, "terminated by peer");
    const auto signal =
        scanner.take("Terminating on signal ") ? scanner.takeNumber(1, 3) : std::nullopt;
    if (!signal)
        return std::nullopt;
    return messageWithText(Kind::Ending, "signal " + std::to_string(*signal));
}

std::optional<PppdMessage> parsePlain(usage::TextScanner scanner)
{
    if (scanner.take("Connect script failed"))
        return plainMessage(Kind::ScriptFailed);
    if (scanner.rest() == "Exit.")
        return plainMessage(Kind::Exit);
    if (scanner.take("Failed") && (scanner.isAtEnd() || scanner.take(" (")))
        return plainMessage(Kind::ChatFailed);
    return std::nullopt;
}

/// The next word of a command line, without quotation marks around it.
std::string_view takeArgument(usage::TextScanner &scanner)
{
    scanner.takeSpaces();
    std::string_view word = scanner.takeWord();
    while (!word.empty() && (word.front() == '"' || word.front() == '\''))
        word.remove_prefix(1);
    while (!word.empty() && (word.back() == '"' || word.back() == '\''))
        word.remove_suffix(1);
    return word;
}

bool isDialString(std::string_view text)
{
    return text.find_first_not_of("0123456789*#+") == std::string_view::npos;
}

/// connect chat -v -f /etc/chatscripts/modem -T internet.example
std::optional<PppdMessage> parsePppdApn(usage::TextScanner scanner)
{
    if (!scanner.take("connect "))
        return std::nullopt;
    bool isChat = false;
    while (!scanner.isAtEnd()) {
        const std::string_view word = takeArgument(scanner);
        isChat = isChat || word.substr(word.rfind('/') + 1) == "chat";
        if (!isChat || !usage::startsWith(word, "-T"))
            continue;
        const std::string_view value = word == "-T" ? takeArgument(scanner) : word.substr(2);
        if (!isDialString(value))
            return messageWithText(Kind::PppdApn, value);
    }
    return std::nullopt;
}

std::optional<std::string_view> takeQuoted(usage::TextScanner &scanner)
{
    scanner.takeSpaces();
    return scanner.take('"') ? scanner.takeUntil("\"") : std::nullopt;
}

bool takeCommaAfterDigits(usage::TextScanner &scanner)
{
    scanner.takeSpaces();
    scanner.takeDigits();
    scanner.takeSpaces();
    return scanner.take(',');
}

usage::TextScanner behindCommand(std::string_view text, std::string_view command)
{
    const auto found = std::search(
        text.begin(), text.end(), command.begin(), command.end(), [](char left, char right) {
            return std::toupper(static_cast<unsigned char>(left)) == right;
        });
    usage::TextScanner scanner(text.substr(static_cast<std::size_t>(found - text.begin())));
    scanner.takeUntil("=");
    return scanner;
}

/// send (AT+CGDCONT=1,"IP","internet.example"^M)
std::optional<PppdMessage> parseChatApn(usage::TextScanner scanner)
{
    if (!scanner.take("send ("))
        return std::nullopt;
    usage::TextScanner fields = behindCommand(scanner.rest(), "+CGDCONT=");
    if (!takeCommaAfterDigits(fields) || !takeQuoted(fields) || !takeCommaAfterDigits(fields))
        return std::nullopt;
    const auto apn = takeQuoted(fields);
    if (!apn || apn->empty())
        return std::nullopt;
    return messageWithText(Kind::ChatApn, *apn);
}

} // namespace

bool isOfConnection(const PppdMessage &message)
{
    switch (message.kind) {
    case Kind::Connect:
    case Kind::LocalAddress:
    case Kind::ConnectTime:
    case Kind::ByteCounts:
        return true;
    default:
        return false;
    }
}

std::optional<PppdMessage> parsePppdMessage(std::string_view message)
{
    const usage::TextScanner scanner(message);
    for (const auto parse : {parseConnect, parseLocalAddress, parseConnectTime, parseByteCounts,
                             parseEnding, parsePlain, parsePppdApn, parseChatApn}) {
        if (auto parsed = parse(scanner))
            return parsed;
    }
    return std::nullopt;
}

} // namespace formats
