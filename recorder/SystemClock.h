// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace recorder
{

/// The system's clocks.
class SystemClock
{
public:
    virtual ~SystemClock() = default;

    /// Seconds since 1970-01-01 00:00 UTC; jumps when somebody sets the clock.
    virtual std::int64_t utcSeconds() const;
    /// Milliseconds since the system was started, suspend included; never jumps.
    virtual std::int64_t bootMilliseconds() const;
};

/// What tells one run of the system from every other; empty if it is not known.
std::string currentBootId();

} // namespace recorder
