// SPDX-License-Identifier: MIT
#include "CalendarTime.h"

#include "PaddedNumber.h"

#include <QDateTime>

namespace usage
{

namespace
{

constexpr std::int64_t secondsPerHour = 3600;
constexpr int someLeapYear = 2000;

bool takeDate(TextScanner &scanner, CalendarTime &time)
{
    const auto year = scanner.takeNumber(4, 4);
    if (!year || !scanner.take('-'))
        return false;
    const auto month = scanner.takeNumber(2, 2);
    if (!month || !scanner.take('-'))
        return false;
    const auto day = scanner.takeNumber(2, 2);
    if (!day)
        return false;
    time.year = *year;
    time.month = *month;
    time.day = *day;
    return true;
}

/// ±hh, ±hhmm or ±hh:mm in seconds.
std::optional<int> takeOffset(TextScanner &scanner)
{
    const int sign = scanner.take('-') ? -1 : 1;
    if (sign == 1 && !scanner.take('+'))
        return std::nullopt;
    const auto hours = scanner.takeNumber(2, 2);
    if (!hours)
        return std::nullopt;
    const bool minutesFollow = scanner.take(':');
    const auto minutes = scanner.takeNumber(2, 2);
    if (minutesFollow && !minutes)
        return std::nullopt;
    return sign * (*hours * 3600 + minutes.value_or(0) * 60);
}

/// Whether what stands here, Z, an offset or none, is a zone.
bool takeZone(TextScanner &scanner, CalendarTime &time)
{
    if (scanner.takeAnyOf("Zz")) {
        time.utcOffset = 0;
        return true;
    }
    const std::string_view rest = scanner.rest();
    if (rest.empty() || (rest.front() != '+' && rest.front() != '-'))
        return true;
    time.utcOffset = takeOffset(scanner);
    return time.utcOffset.has_value();
}

struct DayOfCalendar {
    std::int64_t year;
    std::int64_t month;
    std::int64_t day;
};

/// Counted in years that begin in March, whose leap day is their last.
DayOfCalendar dayOfCalendar(std::int64_t daysSince1970)
{
    constexpr std::int64_t daysOf400Years = 146097;
    const std::int64_t days = daysSince1970 + 719468; // since 0000-03-01
    const std::int64_t era = days / daysOf400Years;
    const std::int64_t dayOfEra = days % daysOf400Years;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    return {era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month,
            dayOfYear - (153 * monthFromMarch + 2) / 5 + 1};
}

/// The other way round, of a year from 1 on.
std::int64_t daysSince1970(const CalendarTime &time)
{
    const int year = time.month <= 2 ? time.year - 1 : time.year;
    const int monthFromMarch = time.month <= 2 ? time.month + 9 : time.month - 3;
    return std::int64_t(year) * 365 + year / 4 - year / 100 + year / 400 +
           (153 * monthFromMarch + 2) / 5 + time.day - 1 - 719468;
}

QDate dateOf(const CalendarTime &time)
{
    return QDate(time.year, time.month, time.day);
}

QTime timeOfDay(const CalendarTime &time)
{
    return QTime(time.hour, time.minute, time.second);
}

CalendarTime calendarTime(const QDateTime &time)
{
    const QDate date = time.date();
    const QTime clock = time.time();
    return {date.year(),    date.month(),   date.day(), clock.hour(),
            clock.minute(), clock.second(), {}};
}

bool isSameOnWallClock(std::int64_t utc, std::int64_t otherUtc)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(utc);
    const QDateTime other = QDateTime::fromSecsSinceEpoch(otherUtc);
    return time.time() == other.time() && time.date() == other.date();
}

} // namespace

bool isValid(const CalendarTime &time)
{
    const int year = time.year == 0 ? someLeapYear : time.year;
    return QDate::isValid(year, time.month, time.day) &&
           QTime::isValid(time.hour, time.minute, time.second);
}

bool takeTimeOfDay(TextScanner &scanner, CalendarTime &time, bool secondsOptional)
{
    const auto hour = scanner.takeNumber(2, 2);
    if (!hour || !scanner.take(':'))
        return false;
    const auto minute = scanner.takeNumber(2, 2);
    if (!minute)
        return false;
    time.hour = *hour;
    time.minute = *minute;
    if (!scanner.take(':'))
        return secondsOptional;
    const auto second = scanner.takeNumber(2, 2);
    if (!second)
        return false;
    // A leap second is told as the one before it, as the system's clock does.
    time.second = *second == 60 ? 59 : *second;
    return !scanner.takeAnyOf(".,") || !scanner.takeDigits().empty();
}

std::optional<CalendarTime> takeIsoTime(TextScanner &scanner)
{
    TextScanner ahead = scanner;
    CalendarTime time;
    if (!takeDate(ahead, time) || !ahead.takeAnyOf("Tt ") || !takeTimeOfDay(ahead, time, true) ||
        !takeZone(ahead, time) || time.year == 0 || !isValid(time))
        return std::nullopt;
    scanner = ahead;
    return time;
}

std::optional<std::int64_t> utcFromIso(std::string_view text)
{
    TextScanner scanner(text);
    const auto time = takeIsoTime(scanner);
    if (!time || !scanner.isAtEnd())
        return std::nullopt;
    return utcSpan(*time).earliest;
}

UtcSpan utcSpan(const CalendarTime &time)
{
    if (time.utcOffset) {
        const std::int64_t utc = daysSince1970(time) * secondsPerDay + time.hour * secondsPerHour +
                                 std::int64_t{time.minute} * 60 + time.second - *time.utcOffset;
        return {utc, utc};
    }
    const std::int64_t utc = QDateTime(dateOf(time), timeOfDay(time)).toSecsSinceEpoch();
    if (isSameOnWallClock(utc, utc - secondsPerHour))
        return {utc - secondsPerHour, utc};
    if (isSameOnWallClock(utc, utc + secondsPerHour))
        return {utc, utc + secondsPerHour};
    return {utc, utc};
}

CalendarTime localCalendarTime(std::int64_t utc)
{
    return calendarTime(QDateTime::fromSecsSinceEpoch(utc));
}

CalendarTime utcCalendarTime(std::int64_t utc)
{
    CalendarTime time = calendarTime(QDateTime::fromSecsSinceEpoch(utc).toUTC());
    time.utcOffset = 0;
    return time;
}

void appendUtc(std::string &text, std::int64_t utc)
{
    if (utc < 0 || utc > latestWrittenTime) {
        text += utcText(utc).toStdString();
        return;
    }
    const DayOfCalendar day = dayOfCalendar(utc / secondsPerDay);
    const std::int64_t second = utc % secondsPerDay;
    appendPadded(text, day.year, 4);
    appendPadded(text += '-', day.month, 2);
    appendPadded(text += '-', day.day, 2);
    appendPadded(text += 'T', second / secondsPerHour, 2);
    appendPadded(text += ':', second / 60 % 60, 2);
    appendPadded(text += ':', second % 60, 2);
    text += 'Z';
}

QString utcText(std::int64_t utc)
{
    return QDateTime::fromSecsSinceEpoch(utc).toUTC().toString(Qt::ISODate);
}

QString localText(std::int64_t utc)
{
    return QDateTime::fromSecsSinceEpoch(utc).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

void appendDuration(std::string &text, std::int64_t seconds)
{
    const std::int64_t hours = seconds / secondsPerHour;
    if (hours < 10)
        text += '0';
    text += std::to_string(hours);
    appendPadded(text += ':', seconds / 60 % 60, 2);
    appendPadded(text += ':', seconds % 60, 2);
}

QString durationText(std::int64_t seconds)
{
    std::string text;
    appendDuration(text, seconds);
    return QString::fromStdString(text);
}

} // namespace usage
