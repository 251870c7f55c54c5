// SPDX-License-Identifier: MIT
#include "Selection.h"

#include "OptionValue.h"
#include "StoreResult.h"
#include "usage/LocalClock.h"
#include "usage/SimNumber.h"

#include <algorithm>
#include <limits>

namespace connrecord
{

namespace
{

QDate optionDay(const std::string &option, const std::optional<std::string> &text)
{
    return text ? optionValue(option, *text, formats::fieldDay) : QDate();
}

std::size_t mostOf(const std::optional<std::string> &limit)
{
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::size_t>(limit ? optionNumber("--limit", *limit, most) : most);
}

} // namespace

usage::LocalDays daysOf(const DaysRequest &request)
{
    const usage::LocalDays days{optionDay("--from", request.from), optionDay("--to", request.to)};
    if (!days.first.isNull() && !days.last.isNull() && days.last < days.first)
        throw Failure(ExitCode::Refused, "The last day, " + *request.to +
                                             ", is before the first one, " + *request.from + ".");
    return days;
}

std::vector<history::Connection> selectedFrom(const history::Store &store,
                                              const SelectionRequest &request)
{
    const usage::LocalDays days = daysOf(request.days);
    const std::size_t most = mostOf(request.limit);
    auto connections = valueOrFailure(store.list(days.widerRange()));
    const usage::LocalClock clock;
    const auto isLeftOut = [&](const history::Connection &connection) {
        return (request.profile && connection.profile != *request.profile) ||
               (request.sim && !usage::isSimNumber(connection.sim, *request.sim)) ||
               !days.contains(clock.dayAt(connection.startUtc));
    };
    connections.erase(std::remove_if(connections.begin(), connections.end(), isLeftOut),
                      connections.end());
    if (connections.size() > most)
        connections.erase(connections.begin(),
                          connections.end() - static_cast<std::ptrdiff_t>(most));
    return connections;
}

} // namespace connrecord
