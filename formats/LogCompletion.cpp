// SPDX-License-Identifier: MIT
#include "LogCompletion.h"

#include "usage/CalendarTime.h"

#include <cstdlib>

namespace formats
{

namespace
{

std::int64_t derivedStart(const history::Connection &connection)
{
    return connection.endUtc - connection.connectedSeconds;
}

/// Whether the start comes from a line of a log.
bool hasLoggedStart(const history::Connection &connection)
{
    return connection.startUtc != derivedStart(connection);
}

bool isProfileBetter(const history::Connection &stored, const history::Connection &logged,
                     ProfileSource source)
{
    const bool isNamed = stored.profile != placeholderProfile(stored.interfaceName);
    const bool hasBeginning = !logged.interfaceName.empty();
    switch (source) {
    case ProfileSource::Placeholder:
        return !isNamed && hasBeginning;
    case ProfileSource::Option:
        return !isNamed;
    case ProfileSource::Log:
        // A log without the beginning may show what was dialled for another one.
        return !isNamed || hasBeginning || stored.interfaceName.empty();
    }
    return false;
}

bool isStartBetter(const history::Connection &stored, const history::Connection &logged)
{
    if (!isPlausibleStart(stored.startUtc, stored))
        return true;
    return hasLoggedStart(logged) && (!hasLoggedStart(stored) || logged.startUtc < stored.startUtc);
}

/// Whether the value was another one.
template <typename Value>
bool take(Value &value, const Value &other)
{
    if (value == other)
        return false;
    value = other;
    return true;
}

} // namespace

std::string placeholderProfile(const std::string &interfaceName)
{
    return interfaceName.empty() ? "ppp" : interfaceName;
}

bool isPlausibleStart(std::int64_t startUtc, const history::Connection &connection)
{
    return std::abs(startUtc - derivedStart(connection)) <= usage::secondsPerDay;
}

bool completeFromLog(history::Connection &stored, const history::Connection &logged,
                     ProfileSource source)
{
    bool isChanged = false;
    if (isProfileBetter(stored, logged, source))
        isChanged |= take(stored.profile, logged.profile);
    if (isStartBetter(stored, logged))
        isChanged |= take(stored.startUtc, logged.startUtc);
    if (stored.interfaceName.empty())
        isChanged |= take(stored.interfaceName, logged.interfaceName);
    if (stored.ending == history::Connection().ending)
        isChanged |= take(stored.ending, logged.ending);
    return isChanged;
}

} // namespace formats
