// SPDX-License-Identifier: MIT
#include "TimeText.h"

#include "LocalTime.h"
#include "LocalZone.h"

#include <QLocale>

#include <algorithm>
#include <optional>

namespace
{

constexpr int textLength = 14;

constexpr std::time_t hour = 3600;
constexpr std::time_t day = LocalZone::secondsPerDay;

// In both years every moment has a known offset, however far its clocks are from UTC.
constexpr int firstYear = 1971;
constexpr int lastYear = LocalZone::lastYearOfAgreement - 1;

qint64 epoch()
{
    static const qint64 julianDay = QDate(1970, 1, 1).toJulianDay();
    return julianDay;
}

QString format()
{
    return QStringLiteral("yyyyMMddhhmmss");
}

bool isAsciiDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// The number that `length` ASCII digits name.
int number(const QChar *digits, int length)
{
    int value = 0;
    for (int i = 0; i < length; ++i)
        value = value * 10 + (digits[i].unicode() - u'0');
    return value;
}

void writeNumber(int value, QChar *digits, int length)
{
    for (int i = length - 1; i >= 0; --i, value /= 10)
        digits[i] = QChar(u'0' + value % 10);
}

/// The offset when local clocks show what UTC does at this moment; nothing if they show
/// it never or twice.
std::optional<LocalZone::Offset> offsetWhenShown(std::time_t asUtc)
{
    // Clocks are at most 14 hours ahead of UTC and 12 behind it, so the moment
    // lies between these two.
    const std::time_t earliest = asUtc - 15 * hour;
    const std::time_t latest = asUtc + 13 * hour;
    if (const auto offset = LocalZone::steadyOffset(earliest, latest))
        return offset;
    const auto before = LocalZone::offsetAt(earliest);
    const auto after = LocalZone::offsetAt(latest);
    if (!before || !after || before->seconds == after->seconds)
        return std::nullopt;
    const bool isBefore = LocalZone::offsetAt(asUtc - before->seconds) == before;
    const bool isAfter = LocalZone::offsetAt(asUtc - after->seconds) == after;
    if (isBefore == isAfter)
        return std::nullopt;
    return isBefore ? before : after;
}

/// The time that fourteen ASCII digits name; nothing if they name none, or one that
/// does not exist or exists twice, as the clocks change.
std::optional<QDateTime> ordinaryTime(const QChar *digits)
{
    const int year = number(digits, 4);
    const QDate date(year, number(digits + 4, 2), number(digits + 6, 2));
    const QTime time(number(digits + 8, 2), number(digits + 10, 2), number(digits + 12, 2));
    if (year < firstYear || year > lastYear || !date.isValid() || !time.isValid())
        return std::nullopt;
    const std::time_t asUtc =
        (date.toJulianDay() - epoch()) * day + time.msecsSinceStartOfDay() / 1000;
    const auto offset = offsetWhenShown(asUtc);
    if (!offset)
        return std::nullopt;
    return LocalTime::at(asUtc - offset->seconds, *offset);
}

} // namespace

QDateTime TimeText::parsed(const QString &text)
{
    const QChar *digits = text.constData();
    if (text.size() == textLength && std::all_of(digits, digits + textLength, isAsciiDigit)) {
        if (const auto time = ordinaryTime(digits))
            return *time;
    }
    return QDateTime::fromString(text, format());
}

QString TimeText::of(quint32 secondsSinceEpoch)
{
    const auto offset = LocalZone::offsetAt(secondsSinceEpoch);
    if (!offset)
        return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(secondsSinceEpoch), format());
    const qint64 local = secondsSinceEpoch + qint64(offset->seconds) + day; // not negative
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    QDate::fromJulianDay(epoch() - 1 + local / day).getDate(&year, &month, &dayOfMonth);
    const auto time = static_cast<int>(local % day);
    QChar digits[textLength];
    writeNumber(year, digits, 4);
    writeNumber(month, digits + 4, 2);
    writeNumber(dayOfMonth, digits + 6, 2);
    writeNumber(time / 3600, digits + 8, 2);
    writeNumber(time / 60 % 60, digits + 10, 2);
    writeNumber(time % 60, digits + 12, 2);
    return QString(digits, textLength);
}
