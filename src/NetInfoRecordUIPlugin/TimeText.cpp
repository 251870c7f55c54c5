// SPDX-License-Identifier: MIT
#include "TimeText.h"

#include <QLocale>

#include <algorithm>
#include <ctime>
#include <optional>

namespace
{

constexpr int textLength = 14;

// The years in which Qt and the C library agree about local time; for
// later ones older versions of Qt take the rules of another year.
constexpr int firstYear = 1971;
constexpr int lastYear = 2036;
constexpr std::time_t endOfAgreement = 2145916800; // of 2037, in UTC

constexpr std::time_t hour = 3600;
constexpr std::time_t day = 24 * hour;

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

/// Whether `to` is filled, and by plain arithmetic: not in a zone that counts leap
/// seconds, once there were some.
bool breakDown(std::time_t secondsSinceEpoch, std::tm &to)
{
    return localtime_r(&secondsSinceEpoch, &to) &&
           to.tm_sec == (secondsSinceEpoch + to.tm_gmtoff) % 60;
}

/// The time that fourteen ASCII digits name; nothing if they name none, or one
/// near a change of the clocks, which might not exist or exist twice.
std::optional<QDateTime> ordinaryTime(const QChar *digits)
{
    const int year = number(digits, 4);
    const QDate date(year, number(digits + 4, 2), number(digits + 6, 2));
    const QTime time(number(digits + 8, 2), number(digits + 10, 2), number(digits + 12, 2));
    if (year < firstYear || year > lastYear || !date.isValid() || !time.isValid())
        return std::nullopt;
    static const qint64 epoch = QDate(1970, 1, 1).toJulianDay();
    const std::time_t asUtc =
        (date.toJulianDay() - epoch) * day + time.msecsSinceStartOfDay() / 1000;
    // Clocks are at most 14 hours ahead of UTC and 12 behind it, so the moment
    // lies between these two, and what holds at both holds then.
    std::tm before = {};
    std::tm after = {};
    tzset(); // a host may have changed the zone; localtime_r need not look
    if (!breakDown(asUtc - 15 * hour, before) || !breakDown(asUtc + 13 * hour, after) ||
        before.tm_gmtoff != after.tm_gmtoff)
        return std::nullopt;
    return QDateTime::fromSecsSinceEpoch(asUtc - before.tm_gmtoff);
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
    std::tm parts = {};
    tzset(); // as above
    if (secondsSinceEpoch >= endOfAgreement || !breakDown(secondsSinceEpoch, parts))
        return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(secondsSinceEpoch), format());
    QString text(textLength, Qt::Uninitialized);
    QChar *digits = text.data();
    writeNumber(parts.tm_year + 1900, digits, 4);
    writeNumber(parts.tm_mon + 1, digits + 4, 2);
    writeNumber(parts.tm_mday, digits + 6, 2);
    writeNumber(parts.tm_hour, digits + 8, 2);
    writeNumber(parts.tm_min, digits + 10, 2);
    writeNumber(parts.tm_sec, digits + 12, 2);
    return text;
}
