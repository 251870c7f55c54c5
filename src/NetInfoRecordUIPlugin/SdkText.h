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

/// How long a field's text is: up to its terminator, or the whole field if it has none.
template <typename Unit, std::size_t Size>
int length(const Unit (&field)[Size])
{
    return static_cast<int>(std::find(std::begin(field), std::end(field), Unit()) -
                            std::begin(field));
}

/// A field's text.
template <std::size_t Size>
QString bounded(const char (&field)[Size])
{
    return QString::fromLatin1(field, length(field));
}

template <std::size_t Size>
QString bounded(const char16_t (&field)[Size])
{
    return QString::fromUtf16(field, length(field));
}

/// The number of a text that is one to fifteen ASCII digits and nothing else:
/// the rule among these fields, read without Qt's care for others.
template <std::size_t Size>
std::optional<qint64> plainNumber(const char (&field)[Size])
{
    constexpr std::size_t longest = 15; // such a number is exact as a double too
    qint64 number = 0;
    for (std::size_t i = 0; i < Size && i <= longest; ++i) {
        const unsigned int digit = static_cast<unsigned char>(field[i]) - unsigned{'0'};
        if (digit <= 9)
            number = number * 10 + digit;
        else
            return field[i] == '\0' && i > 0 ? std::optional(number) : std::nullopt;
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
