// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

/// Whole numbers whose products need more than 64 bits on the way.
namespace usage
{

__extension__ using Wide = __int128;

inline std::int64_t saturated(Wide value)
{
    constexpr Wide least = std::numeric_limits<std::int64_t>::min();
    constexpr Wide most = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(std::clamp(value, least, most));
}

inline std::int64_t saturatingSum(std::int64_t a, std::int64_t b)
{
    return saturated(Wide(a) + b);
}

inline std::int64_t saturatingDifference(std::int64_t a, std::int64_t b)
{
    return saturated(Wide(a) - b);
}

/// value * numerator / denominator, rounded down; the denominator is positive.
inline std::int64_t scaledDown(std::int64_t value, std::int64_t numerator, std::int64_t denominator)
{
    const Wide product = Wide(value) * numerator;
    const Wide quotient = product / denominator;
    return saturated(product % denominator < 0 ? quotient - 1 : quotient);
}

/// Whether a * b is at least c * d.
inline bool isProductAtLeast(std::int64_t a, std::int64_t b, std::int64_t c, std::int64_t d)
{
    return Wide(a) * b >= Wide(c) * d;
}

} // namespace usage
