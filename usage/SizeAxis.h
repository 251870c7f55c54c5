// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace usage
{

/// The lines of an axis of sizes, `step` bytes from one to the next, from 0 on.
struct SizeAxis {
    std::int64_t step = 0;
    int steps = 0; ///< the lines above the one at 0, at least one

    double top() const { return double(step) * steps; }
};

/// Lines at sizes that read well, at most so many (2 or more) above 0, and none that is not needed
/// to reach beyond the largest size.
SizeAxis sizeAxisFor(std::int64_t largest, int mostSteps);

} // namespace usage
