// SPDX-License-Identifier: MIT
#include "SizeAxis.h"

#include "SizeText.h"

#include <algorithm>
#include <array>

namespace usage
{

namespace
{

constexpr std::int64_t gigabyte = kilobyte * kilobyte * kilobyte;
/// In a unit that there is a larger one of; the last ones are parts of that one.
constexpr std::array<std::int64_t, 10> stepsInUnit = {1, 2, 5, 10, 20, 50, 100, 200, 256, 512};
constexpr std::array<std::int64_t, 3> stepsInDecade = {1, 2, 5};

bool reaches(std::int64_t step, std::int64_t largest, int mostSteps)
{
    return largest / step < mostSteps || (largest / step == mostSteps && largest % step == 0);
}

std::int64_t stepFor(std::int64_t largest, int mostSteps)
{
    for (std::int64_t unit = kilobyte; unit < gigabyte; unit *= kilobyte) {
        for (const std::int64_t count : stepsInUnit) {
            if (reaches(count * unit, largest, mostSteps))
                return count * unit;
        }
    }
    // What is written in gigabytes has no larger unit. The largest number is reached in time.
    for (std::int64_t decade = gigabyte;; decade *= 10) {
        for (const std::int64_t count : stepsInDecade) {
            if (reaches(count * decade, largest, mostSteps))
                return count * decade;
        }
    }
}

} // namespace

SizeAxis sizeAxisFor(std::int64_t largest, int mostSteps)
{
    const std::int64_t step = stepFor(largest, mostSteps);
    const std::int64_t steps = largest / step + (largest % step == 0 ? 0 : 1);
    return {step, int(std::max<std::int64_t>(1, steps))};
}

} // namespace usage
