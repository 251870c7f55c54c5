// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>

/// How the texts of an SDK record are read.
namespace SdkText
{

/// A field's text up to its terminator, or the whole field if it has none.
template <std::size_t Size>
QString bounded(const char (&field)[Size])
{
    const char *end = std::find(std::begin(field), std::end(field), '\0');
    return QString::fromLatin1(field, static_cast<int>(end - field));
}

template <std::size_t Size>
QString bounded(const char16_t (&field)[Size])
{
    const char16_t *end = std::find(std::begin(field), std::end(field), u'\0');
    return QString::fromUtf16(field, static_cast<int>(end - field));
}

/// The number of a text that is one to fifteen ASCII digits and nothing else:
/// the rule among these fields, read without Qt's care for others.
template <std::size_t Size>
std::optional<qint64> plainNumber(const char (&field)[Size])
{
    constexpr std::size_t longest = 15; // such a number is exact as a double too
    qint64 number = 0;
    for (std::size_t i = 0; i < Size && i <= longest; ++i) {
        if (field[i] == '\0' && i > 0)
            return number;
        if (field[i] < '0' || field[i] > '9')
            return std::nullopt;
        number = number * 10 + (field[i] - '0');
    }
    return std::nullopt;
}

/// A whole number; 0 if the text names none or one that 32 bits do not hold.
template <std::size_t Size>
int integer(const char (&field)[Size])
{
    const auto number = plainNumber(field);
    return number && *number <= std::numeric_limits<int>::max() ? static_cast<int>(*number)
                                                                : bounded(field).toInt();
}

/// Any number; 0 if the text names none or one that a double does not hold.
template <std::size_t Size>
double real(const char (&field)[Size])
{
    if (const auto number = plainNumber(field))
        return static_cast<double>(*number);
    bool isNumber = false;
    const double number = bounded(field).toDouble(&isNumber);
    return isNumber ? number : 0.0;
}

/// A time in seconds since 1970-01-01 UTC. The number is taken as unsigned, so
/// a negative text wraps; that is meant.
template <std::size_t Size>
quint32 seconds(const char (&field)[Size])
{
    return static_cast<quint32>(integer(field));
}

} // namespace SdkText
