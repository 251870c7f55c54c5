// SPDX-License-Identifier: MIT
#include "Selection.h"

#include "OptionValue.h"
#include "StoreResult.h"
#include "usage/LocalClock.h"
#include "usage/SimNumber.h"

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
    if (!limit)
        return std::numeric_limits<std::size_t>::max();
    return static_cast<std::size_t>(
        optionNumber("--limit", *limit, std::numeric_limits<std::int64_t>::max()));
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

history::ConnectionSelection selectionOf(const SelectionRequest &request)
{
    const usage::LocalDays days = daysOf(request.days);
    history::ConnectionSelection selection;
    selection.range = days.widerRange();
    selection.most = mostOf(request.limit);
    const bool isAnyDay = days.first.isNull() && days.last.isNull();
    if (isAnyDay && !request.profile && !request.sim)
        return selection;
    selection.isWanted = [=, clock = usage::LocalClock()](const history::ConnectionBase &each) {
        return (!request.profile || each.profile == *request.profile) &&
               (!request.sim || usage::isSimNumber(each.sim, *request.sim)) &&
               (isAnyDay || days.contains(clock.dayAt(each.startUtc)));
    };
    return selection;
}

std::vector<history::Connection> selectedFrom(const history::Store &store,
                                              const SelectionRequest &request)
{
    std::vector<history::Connection> connections;
    valueOrFailure(store.visit(selectionOf(request), [&](const history::Connection &connection) {
        connections.push_back(connection);
    }));
    return connections;
}

} // namespace connrecord
