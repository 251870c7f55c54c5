// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace usage
{

/// Puts the last `digits` digits of a number that is not negative behind the text.
inline void appendPadded(std::string &text, std::int64_t number, std::size_t digits)
{
    const std::size_t start = text.size();
    text.resize(start + digits);
    for (std::size_t i = digits; i > 0; --i, number /= 10)
        text[start + i - 1] = static_cast<char>('0' + number % 10);
}

} // namespace usage
