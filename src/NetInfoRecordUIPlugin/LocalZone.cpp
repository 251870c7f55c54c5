// SPDX-License-Identifier: MIT
#include "LocalZone.h"

#include <array>

using LocalZone::Offset;
using LocalZone::secondsPerDay;

namespace
{

/// What a look at the zone has found of a day of UTC. What earlier ones found counts no more.
struct Day {
    unsigned int lookAtBegin = 0;
    unsigned int lookAtAll = 0;
    unsigned int lookAround = 0;
    std::optional<Offset> atBegin;
    bool isSteady = false;       // until the begin of the next day
    bool isSteadyAround = false; // from the begin of the day before until the end of the next
};

std::array<Day, LocalZone::endOfAgreement / secondsPerDay + 1> days;
unsigned int currentLook = 0;
int holds = 0;
bool isLookDue = true;

void lookIfDue()
{
    if (!isLookDue)
        return;
    tzset(); // localtime_r need not do it
    ++currentLook;
    isLookDue = holds == 0;
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

Day &dayFromItsBegin(std::time_t number)
{
    Day &day = days[static_cast<std::size_t>(number)];
    if (day.lookAtBegin != currentLook) {
        day.lookAtBegin = currentLook;
        day.atBegin = offsetByTheCLibrary(number * secondsPerDay);
    }
    return day;
}

// Clocks do not change twice within a day, so what holds at its begin and at the next
// day's holds in between.
const Day &wholeDay(std::time_t number)
{
    Day &day = days[static_cast<std::size_t>(number)];
    if (day.lookAtAll != currentLook) {
        const auto atBegin = dayFromItsBegin(number).atBegin;
        day.lookAtAll = currentLook;
        day.isSteady = atBegin && atBegin == dayFromItsBegin(number + 1).atBegin;
    }
    return day;
}

const Day &dayAmongOthers(std::time_t number)
{
    Day &day = days[static_cast<std::size_t>(number)];
    if (day.lookAround != currentLook) {
        day.lookAround = currentLook;
        day.isSteadyAround = wholeDay(number - 1).isSteady && wholeDay(number).isSteady &&
                             wholeDay(number + 1).isSteady;
    }
    return day;
}

} // namespace

std::optional<Offset> LocalZone::offsetAt(std::time_t moment)
{
    if (!isWithinAgreement(moment))
        return std::nullopt;
    lookIfDue();
    const Day &day = wholeDay(moment / secondsPerDay);
    return day.isSteady ? day.atBegin : offsetByTheCLibrary(moment);
}

std::optional<Offset> LocalZone::steadyOffsetAround(std::time_t moment)
{
    if (!isWithinAgreement(moment - secondsPerDay) || !isWithinAgreement(moment + secondsPerDay))
        return std::nullopt;
    lookIfDue();
    const Day &day = dayAmongOthers(moment / secondsPerDay);
    return day.isSteadyAround ? day.atBegin : std::nullopt;
}

LocalZone::Hold::Hold()
{
    ++holds;
}

LocalZone::Hold::~Hold()
{
    --holds;
    isLookDue = holds == 0;
}
