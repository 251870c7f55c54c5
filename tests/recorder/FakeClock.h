// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/ConnectionRecorder.h"
#include "recorder/SystemClock.h"

/// Clocks that show what a test says.
class FakeClock : public recorder::SystemClock
{
public:
    std::int64_t utcSeconds() const override { return utc; }
    std::int64_t bootMilliseconds() const override { return boot; }

    void pass(std::int64_t milliseconds)
    {
        boot += milliseconds;
        utc += milliseconds / 1000;
    }

    std::int64_t utc = 1700000000;
    std::int64_t boot = 5000000;
};

/// Many times a second what a recorder does once: a test waits for it.
constexpr recorder::RecorderIntervals shortIntervals = {
    std::chrono::milliseconds(10), std::chrono::milliseconds(20), 4, std::chrono::milliseconds(20)};
