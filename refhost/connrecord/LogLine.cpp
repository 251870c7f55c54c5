// SPDX-License-Identifier: MIT
#include "LogLine.h"

#include "TextScanner.h"

#include <algorithm>
#include <array>

namespace refhost
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
int takeName(TextScanner &scanner, const std::array<std::string_view, count> &names)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (scanner.take(names[i]))
            return static_cast<int>(i) + 1;
    }
    return 0;
}

/// The year that follows the time of day where a weekday stands in front.
void takeTrailingYear(TextScanner &scanner, CalendarTime &time)
{
    TextScanner ahead = scanner;
    if (!ahead.takeSpaces())
        return;
    const auto year = ahead.takeNumber(4, 4);
    if (!year || (!ahead.isAtEnd() && ahead.rest().front() != ' '))
        return;
    time.year = *year;
    scanner = ahead;
}

/// Mar 06 12:59:54, or Sat Jun 17 17:29:16 2023.
std::optional<CalendarTime> takeNamedMonthTime(TextScanner &scanner)
{
    TextScanner ahead = scanner;
    CalendarTime time;
    const bool hasWeekday = takeName(ahead, weekdays) != 0;
    if (hasWeekday && !ahead.takeSpaces())
        return std::nullopt;
    time.month = takeName(ahead, months);
    if (time.month == 0 || !ahead.takeSpaces())
        return std::nullopt;
    time.day = ahead.takeNumber(1, 2).value_or(0);
    if (!ahead.takeSpaces() || !takeTimeOfDay(ahead, time, false))
        return std::nullopt;
    if (hasWeekday)
        takeTrailingYear(ahead, time);
    if (!isValid(time))
        return std::nullopt;
    scanner = ahead;
    return time;
}

void passPriority(TextScanner &scanner)
{
    TextScanner ahead = scanner;
    if (ahead.take('<') && !ahead.takeDigits().empty() && ahead.take('>'))
        scanner = ahead;
}

std::optional<CalendarTime> takeTime(TextScanner &scanner)
{
    TextScanner ahead = scanner;
    auto time = takeIsoTime(ahead);
    if (!time)
        time = takeNamedMonthTime(ahead);
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
    TextScanner scanner(word);
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
    TextScanner scanner(word);
    const auto name = scanner.takeUntil("[");
    if (!name || name->empty())
        return false;
    const auto pid = wholeNumber(scanner.takeDigits());
    if (!pid || !pid->isInRange || scanner.rest() != "]:")
        return false;
    line.process = name->substr(name->rfind('/') + 1);
    line.pid = pid->value;
    return true;
}

} // namespace

LogLine parseLogLine(std::string_view text)
{
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    LogLine line;
    TextScanner scanner(text);
    passPriority(scanner);
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

} // namespace refhost
