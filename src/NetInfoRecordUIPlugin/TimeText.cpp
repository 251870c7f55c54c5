// SPDX-License-Identifier: MIT
#include "TimeText.h"

#include "CalendarDay.h"
#include "LocalTime.h"
#include "LocalZone.h"

#include <QLocale>

#include <optional>

namespace
{

constexpr int textLength = 14;

constexpr std::time_t minute = 60;
constexpr std::time_t hour = 60 * minute;
constexpr std::time_t day = LocalZone::secondsPerDay;

// In both years every moment has a known offset, however far its clocks are from UTC.
constexpr int firstYear = 1971;
constexpr int lastYear = LocalZone::lastYearOfAgreement - 1;

QString format()
{
    return QStringLiteral("yyyyMMddhhmmss");
}

bool areAsciiDigits(const QChar *text, int length)
{
    bool areDigits = true;
    for (int i = 0; i < length; ++i)
        areDigits &= text[i].unicode() >= u'0' && text[i].unicode() <= u'9';
    return areDigits;
}

int twoDigits(const QChar *digits)
{
    return digits[0].unicode() * 10 + digits[1].unicode() - u'0' * 11;
}

void writeTwoDigits(int number, QChar *digits)
{
    digits[0] = QChar(u'0' + number / 10);
    digits[1] = QChar(u'0' + number % 10);
}

/// The offset when local clocks show what UTC does at this moment; nothing if they show
/// it never or twice.
std::optional<LocalZone::Offset> offsetWhenShown(std::time_t asUtc)
{
    if (const auto offset = LocalZone::steadyOffsetAround(asUtc))
        return offset;
    // Clocks are at most 14 hours ahead of UTC and 12 behind it, so the moment
    // lies between these two.
    const std::time_t earliest = asUtc - 15 * hour;
    const std::time_t latest = asUtc + 13 * hour;
    const auto before = LocalZone::offsetAt(earliest);
    const auto after = LocalZone::offsetAt(latest);
    // Clocks that change do not change back within a day or two.
    if (before == after)
        return before;
    if (!before || !after || before->seconds == after->seconds)
        return std::nullopt;
    const bool isBefore = LocalZone::offsetAt(asUtc - before->seconds) == before;
    const bool isAfter = LocalZone::offsetAt(asUtc - after->seconds) == after;
    if (isBefore == isAfter)
        return std::nullopt;
    return isBefore ? before : after;
}

/// The moment at which UTC shows what the text says; nothing if that is no time of fourteen
/// ASCII digits in the years in question.
std::optional<std::time_t> timeAsUtc(const QString &text)
{
    const QChar *digits = text.constData();
    if (text.size() != textLength || !areAsciiDigits(digits, textLength))
        return std::nullopt;
    const CalendarDay date{twoDigits(digits) * 100 + twoDigits(digits + 2), twoDigits(digits + 4),
                           twoDigits(digits + 6)};
    const int hours = twoDigits(digits + 8);
    const int minutes = twoDigits(digits + 10);
    const int seconds = twoDigits(digits + 12);
    const bool isTime = hours < 24 && minutes < 60 && seconds < 60;
    if (date.year < firstYear || date.year > lastYear || !date.exists() || !isTime)
        return std::nullopt;
    return date.daysSince1970() * day + hours * hour + minutes * minute + seconds;
}

} // namespace

QDateTime TimeText::parsed(const QString &text)
{
    const auto asUtc = timeAsUtc(text);
    const auto offset = asUtc ? offsetWhenShown(*asUtc) : std::nullopt;
    if (!offset)
        return QDateTime::fromString(text, format());
    return LocalTime::at(*asUtc - offset->seconds, *offset);
}

QString TimeText::of(quint32 secondsSinceEpoch)
{
    const auto offset = LocalZone::offsetAt(secondsSinceEpoch);
    if (!offset)
        return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(secondsSinceEpoch), format());
    const qint64 local = secondsSinceEpoch + qint64(offset->seconds) + day; // not negative
    const CalendarDay date = CalendarDay::at(static_cast<int>(local / day) - 1);
    const auto time = static_cast<int>(local % day);
    QString text(textLength, Qt::Uninitialized);
    QChar *digits = text.data();
    const int pairs[] = {date.year / 100, date.year % 100, date.month, date.day,
                         time / 3600,     time / 60 % 60,  time % 60};
    for (const int pair : pairs) {
        writeTwoDigits(pair, digits);
        digits += 2;
    }
    return text;
}
