// SPDX-License-Identifier: MIT
#include "LogLine.h"

#include "usage/TextScanner.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace formats
{

namespace
{

constexpr std::array<std::string_view, 7> weekdays = {"Mon", "Tue", "Wed", "Thu",
                                                      "Fri", "Sat", "Sun"};
constexpr std::array<std::string_view, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

constexpr std::array<std::string_view, 21> facilities = {
    "auth",   "authpriv", "cron",   "daemon", "ftp",    "kern",     "lpr",
    "mail",   "news",     "syslog", "user",   "uucp",   "security", "local0",
    "local1", "local2",   "local3", "local4", "local5", "local6",   "local7"};
constexpr std::array<std::string_view, 12> severities = {"debug",   "info",  "notice", "warn",
                                                         "warning", "err",   "error",  "crit",
                                                         "alert",   "emerg", "panic",  "none"};

/// Host, facility and a word or two beside them stand in front of the process.
constexpr int mostWordsBeforeProcess = 8;

/// The place of the name that stands here, counted from 1; 0 if none does.
template <std::size_t count>
int takeName(usage::TextScanner &scanner, const std::array<std::string_view, count> &names)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (scanner.take(names[i]))
            return static_cast<int>(i) + 1;
    }
    return 0;
}

/// The year that follows the time of day where a weekday stands in front.
void takeTrailingYear(usage::TextScanner &scanner, usage::CalendarTime &time)
{
    usage::TextScanner ahead = scanner;
    if (!ahead.takeSpaces())
        return;
    const auto year = ahead.takeNumber(4, 4);
    if (!year || (!ahead.isAtEnd() && ahead.rest().front() != ' '))
        return;
    time.year = *year;
    scanner = ahead;
}

/// Mar 06 12:59:54, or Sat Jun 17 17:29:16 2023.
std::optional<usage::CalendarTime> takeNamedMonthTime(usage::TextScanner &scanner)
{
    usage::TextScanner ahead = scanner;
    usage::CalendarTime time;
    const bool hasWeekday = takeName(ahead, weekdays) != 0;
    if (hasWeekday && !ahead.takeSpaces())
        return std::nullopt;
    time.month = takeName(ahead, months);
    if (time.month == 0 || !ahead.takeSpaces())
        return std::nullopt;
    time.day = ahead.takeNumber(1, 2).value_or(0);
    if (!ahead.takeSpaces() || !usage::takeTimeOfDay(ahead, time, false))
        return std::nullopt;
    if (hasWeekday)
        takeTrailingYear(ahead, time);
    if (!usage::isValid(time))
        return std::nullopt;
    scanner = ahead;
    return time;
}

void passPriority(usage::TextScanner &scanner)
{
    usage::TextScanner ahead = scanner;
    if (ahead.take('<') && !ahead.takeDigits().empty() && ahead.take('>'))
        scanner = ahead;
}

/// Gives the time the offset that the zone of this name has then, if it is UTC or
/// one of local time's.
bool applyZone(std::string_view name, usage::CalendarTime &time)
{
    const usage::UtcSpan span = usage::utcSpan(time);
    for (const std::time_t utc : {span.earliest, span.latest}) {
        std::tm local = {};
        if (localtime_r(&utc, &local) && name == local.tm_zone)
            time.utcOffset = static_cast<int>(local.tm_gmtoff);
    }
    if (name == "UTC")
        time.utcOffset = 0;
    return time.utcOffset.has_value();
}

/// Fri 2023-11-10 17:02:09 CET
std::optional<usage::CalendarTime> takeFullTime(usage::TextScanner &scanner)
{
    usage::TextScanner ahead = scanner;
    if (takeName(ahead, weekdays) == 0 || !ahead.takeSpaces())
        return std::nullopt;
    auto time = usage::takeIsoTime(ahead);
    if (!time || !ahead.takeSpaces() || !applyZone(ahead.takeWord(), *time))
        return std::nullopt;
    scanner = ahead;
    return time;
}

/// 1699632129.123456, in seconds since 1970-01-01 00:00 UTC
std::optional<usage::CalendarTime> takeUnixTime(usage::TextScanner &scanner)
{
    constexpr std::size_t leastDigits = 9;
    usage::TextScanner ahead = scanner;
    const std::string_view digits = ahead.takeDigits();
    const auto seconds = usage::wholeNumber(digits);
    if (digits.size() < leastDigits || !seconds->isInRange ||
        seconds->value > usage::latestWrittenTime || !ahead.take('.') || ahead.takeDigits().empty())
        return std::nullopt;
    scanner = ahead;
    return usage::utcCalendarTime(seconds->value);
}

std::optional<usage::CalendarTime> takeTime(usage::TextScanner &scanner)
{
    usage::TextScanner ahead = scanner;
    std::optional<usage::CalendarTime> time;
    for (const auto take : {usage::takeIsoTime, takeNamedMonthTime, takeFullTime, takeUnixTime}) {
        if (!time)
            time = take(ahead);
    }
    ahead.take(':');
    if (!time || (!ahead.isAtEnd() && ahead.rest().front() != ' '))
        return std::nullopt;
    scanner = ahead;
    return time;
}

template <std::size_t count>
bool isOneOf(std::string_view word, const std::array<std::string_view, count> &names)
{
    return std::find(names.begin(), names.end(), word) != names.end();
}

/// Whether the word is such as daemon.info
bool isPriority(std::string_view word)
{
    usage::TextScanner scanner(word);
    const auto facility = scanner.takeUntil(".");
    return facility && isOneOf(*facility, facilities) && isOneOf(scanner.rest(), severities);
}

/// A word in front of the process; the last that is no priority is the host.
void noteHost(std::string_view word, LogLine &line)
{
    if (!word.empty() && word.back() == ':')
        word.remove_suffix(1);
    // What has a colon still may be of a time that cannot be read.
    const bool isOfTime = !line.time && word.find(':') != std::string_view::npos;
    if (!isPriority(word))
        line.host = isOfTime ? std::string_view() : word;
}

/// Whether the word is a process, such as pppd[485]: or /usr/sbin/chat[17]:
bool readProcess(std::string_view word, LogLine &line)
{
    usage::TextScanner scanner(word);
    const auto name = scanner.takeUntil("[");
    if (!name || name->empty())
        return false;
    const auto pid = usage::wholeNumber(scanner.takeDigits());
    if (!pid || !pid->isInRange || scanner.rest() != "]:")
        return false;
    line.process = name->substr(name->rfind('/') + 1);
    line.pid = pid->value;
    return true;
}

/// The next word of an RFC 5424 header, "-" as an empty one.
std::string_view takeHeaderWord(usage::TextScanner &scanner)
{
    scanner.takeSpaces();
    const std::string_view word = scanner.takeWord();
    return word == "-" ? std::string_view() : word;
}

/// [name key="value" ...][...] or -
void passStructuredData(usage::TextScanner &scanner)
{
    scanner.takeSpaces();
    if (scanner.take('-'))
        return;
    while (scanner.take('[')) {
        bool isQuoted = false;
        while (!scanner.isAtEnd() && (isQuoted || !scanner.take(']'))) {
            if (scanner.take('"'))
                isQuoted = !isQuoted;
            else if (!scanner.take("\\\"") && !scanner.take("\\\\"))
                scanner.takeCharacter();
        }
    }
}

/// 1 2023-11-10T17:02:09.123Z host pppd 485 - [structured data] message
std::optional<LogLine> parseRfc5424(usage::TextScanner scanner)
{
    LogLine line;
    if (!scanner.take("1 "))
        return std::nullopt;
    line.time = usage::takeIsoTime(scanner);
    if (!line.time)
        return std::nullopt;
    line.host = takeHeaderWord(scanner);
    const std::string_view process = takeHeaderWord(scanner);
    line.process = process.substr(process.rfind('/') + 1);
    const auto pid = usage::wholeNumber(takeHeaderWord(scanner));
    line.pid = pid && pid->isInRange ? pid->value : -1;
    takeHeaderWord(scanner); // the message's id
    passStructuredData(scanner);
    scanner.takeSpaces();
    scanner.take("\xEF\xBB\xBF");
    line.message = scanner.rest();
    return line;
}

} // namespace

LogLine parseLogLine(std::string_view text)
{
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    LogLine line;
    usage::TextScanner scanner(text);
    passPriority(scanner);
    if (const auto structured = parseRfc5424(scanner))
        return *structured;
    line.time = takeTime(scanner);
    scanner.takeSpaces();
    line.message = scanner.rest();
    for (int i = 0; i < mostWordsBeforeProcess && !scanner.isAtEnd(); ++i) {
        const std::string_view word = scanner.takeWord();
        const bool isProcess = readProcess(word, line);
        scanner.takeSpaces();
        if (isProcess) {
            line.message = scanner.rest();
            return line;
        }
        noteHost(word, line);
    }
    line.host = {};
    return line;
}

} // namespace formats
