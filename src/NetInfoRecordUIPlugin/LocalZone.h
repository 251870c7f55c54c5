// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <optional>

/// The local time zone, as the C library has it. GUI thread only.
namespace LocalZone
{

constexpr std::time_t secondsPerDay = 86400;

/// How far local time is ahead of UTC.
struct Offset {
    int seconds = 0;
    bool isDaylightTime = false;

    bool operator==(const Offset &other) const
    {
        return seconds == other.seconds && isDaylightTime == other.isDaylightTime;
    }
};

/// Before the end of this year, in UTC, Qt and the C library agree about local time; for
/// later years older versions of Qt take the rules of another one.
constexpr int lastYearOfAgreement = 2037;
constexpr std::time_t endOfAgreement = 2145916800;

/// The offset at a moment; nothing in a zone that counts leap seconds, and outside of
/// 1970 to the end of agreement.
std::optional<Offset> offsetAt(std::time_t moment);

/// The offset at a moment and for a day before and after it, if it is certain to be the
/// same all the time.
std::optional<Offset> steadyOffsetAround(std::time_t moment);

/// While one lives, the zone is that of the first question. Without one, each question
/// looks whether the user has chosen another zone meanwhile, for which the C library may
/// have to ask the file system.
class Hold
{
public:
    Hold();
    ~Hold();
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;
};

} // namespace LocalZone
