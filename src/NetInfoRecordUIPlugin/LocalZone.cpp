// SPDX-License-Identifier: MIT
#include "LocalZone.h"

#include <array>

using LocalZone::Offset;
using LocalZone::secondsPerDay;

namespace
{

/// The offset at the begin of a day of UTC, as a look at the zone has found it.
struct Day {
    unsigned int look = 0;
    std::optional<Offset> offset;
};

std::array<Day, LocalZone::endOfAgreement / secondsPerDay + 1> days;
unsigned int currentLook = 0; // what earlier ones have found counts no more
int holds = 0;

void look()
{
    tzset(); // localtime_r need not do it
    ++currentLook;
}

void lookUnlessHeld()
{
    if (holds == 0)
        look();
}

bool isWithinAgreement(std::time_t moment)
{
    return moment >= 0 && moment < LocalZone::endOfAgreement;
}

/// Nothing in a zone that counts leap seconds, once there were some.
std::optional<Offset> offsetByTheCLibrary(std::time_t moment)
{
    std::tm local = {};
    if (!localtime_r(&moment, &local) || local.tm_sec != (moment + local.tm_gmtoff) % 60)
        return std::nullopt;
    return Offset{static_cast<int>(local.tm_gmtoff), local.tm_isdst > 0};
}

const std::optional<Offset> &offsetAtBegin(std::time_t dayNumber)
{
    Day &day = days[static_cast<std::size_t>(dayNumber)];
    if (day.look != currentLook)
        day = {currentLook, offsetByTheCLibrary(dayNumber * secondsPerDay)};
    return day.offset;
}

} // namespace

std::optional<Offset> LocalZone::offsetAt(std::time_t moment)
{
    if (!isWithinAgreement(moment))
        return std::nullopt;
    if (const auto offset = steadyOffset(moment, moment))
        return offset;
    return offsetByTheCLibrary(moment);
}

// Clocks do not change twice within a day, so what holds at its begin and at the next
// day's holds in between.
std::optional<Offset> LocalZone::steadyOffset(std::time_t from, std::time_t until)
{
    if (!isWithinAgreement(from) || !isWithinAgreement(until))
        return std::nullopt;
    lookUnlessHeld();
    const std::time_t firstDay = from / secondsPerDay;
    const std::time_t lastDay = until / secondsPerDay + 1;
    const std::optional<Offset> &offset = offsetAtBegin(firstDay);
    for (std::time_t day = firstDay + 1; day <= lastDay; ++day) {
        if (!(offsetAtBegin(day) == offset))
            return std::nullopt;
    }
    return offset;
}

LocalZone::Hold::Hold()
{
    lookUnlessHeld();
    ++holds;
}

LocalZone::Hold::~Hold()
{
    --holds;
}
