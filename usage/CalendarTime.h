// SPDX-License-Identifier: MIT
#pragma once

#include "TextScanner.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace usage
{

constexpr std::int64_t secondsPerDay = 86400;

/// The end of the year 9999: no calendar that is written in four digits goes on.
constexpr std::int64_t latestWrittenTime = 253402300799;

/// A time as somebody wrote it: a place in the calendar, perhaps without a year,
/// in local time unless an offset says otherwise.
struct CalendarTime {
    int year = 0; ///< 0: not written
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::optional<int> utcOffset; ///< seconds east of UTC
};

/// Whether there is such a time; without a year, whether there is in some year.
bool isValid(const CalendarTime &time);

/// Takes hh:mm:ss; the seconds may be missing if `secondsOptional`, and then stay as they
/// are. A fraction is cut.
bool takeTimeOfDay(TextScanner &scanner, CalendarTime &time, bool secondsOptional);

/// Takes yyyy-MM-ddThh:mm:ss, a space allowed for the T, with or without a
/// fraction, which is cut, and with or without Z or an offset.
std::optional<CalendarTime> takeIsoTime(TextScanner &scanner);

/// The whole text as such a time, the seconds optional; nothing if it is none.
std::optional<std::int64_t> utcFromIso(std::string_view text);

/// The span of the moments that a valid time with a year can mean, in seconds
/// since 1970-01-01 00:00 UTC. It is one moment but in the hour that local time
/// goes through twice when the clocks are set back.
struct UtcSpan {
    std::int64_t earliest;
    std::int64_t latest;
};
UtcSpan utcSpan(const CalendarTime &time);

/// That moment in local time, and in UTC with the offset 0.
CalendarTime localCalendarTime(std::int64_t utc);
CalendarTime utcCalendarTime(std::int64_t utc);

/// yyyy-MM-ddThh:mm:ssZ
QString utcText(std::int64_t utc);
/// The same behind the text, for who writes many.
void appendUtc(std::string &text, std::int64_t utc);
/// yyyy-MM-dd hh:mm:ss in local time
QString localText(std::int64_t utc);
/// hh:mm:ss, the hours as many as they are
QString durationText(std::int64_t seconds);
void appendDuration(std::string &text, std::int64_t seconds);

} // namespace usage
