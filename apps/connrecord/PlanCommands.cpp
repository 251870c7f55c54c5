// SPDX-License-Identifier: MIT
#include "PlanCommands.h"

#include "OptionValue.h"
#include "Output.h"
#include "PlanText.h"
#include "StoreResult.h"
#include "formats/JsonText.h"
#include "usage/LocalDays.h"
#include "usage/PlanChange.h"
#include "usage/PlanWarnings.h"
#include "usage/SizeText.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <vector>

namespace connrecord
{

namespace
{

using history::DataPlan;
using history::JulianDay;

constexpr const char *nothing = "none";

std::int64_t optionSize(const std::string &option, const std::string &text)
{
    const auto bytes = usage::bytesIn(text);
    const std::string quoted = '"' + formats::printable(text) + '"';
    if (!bytes)
        throw optionFailure(ExitCode::Usage, option,
                            quoted + " is not a size such as 10GB or 500MB");
    if (!bytes->isInRange)
        throw optionFailure(ExitCode::Refused, option, quoted + " is more than can be counted");
    return bytes->value;
}

/// A day that plans keep to.
JulianDay optionDay(const std::string &option, const std::string &text)
{
    const JulianDay day = optionValue(option, text, formats::fieldDay).toJulianDay();
    if (day < history::firstPlanDay || day > history::lastPlanDay)
        throw optionFailure(ExitCode::Refused, option,
                            text + " is not between 1970-01-01 and 9999-12-31");
    return day;
}

/// One at least.
std::int64_t optionCount(const std::string &option, const std::string &text, std::int64_t largest)
{
    const std::int64_t number = optionNumber(option, text, largest);
    if (number == 0)
        throw optionFailure(ExitCode::Refused, option, '"' + text + "\" is less than 1");
    return number;
}

std::vector<int> percentagesIn(const std::string &text)
{
    std::vector<int> percentages;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        percentages.push_back(static_cast<int>(
            optionCount("--warn", text.substr(begin, end - begin), history::highestPercentage)));
        begin = end + 1;
    }
    return percentages;
}

void setCoverage(DataPlan &plan, const PlanRequest &request)
{
    if (request.coversEverything) {
        plan.covers = DataPlan::Covers::Everything;
        plan.covered.clear();
    } else if (request.profile) {
        plan.covers = DataPlan::Covers::Profile;
        plan.covered = optionText("--profile", *request.profile);
    } else if (request.sim) {
        plan.covers = DataPlan::Covers::Sim;
        plan.covered = optionText("--sim", *request.sim);
    }
    plan.network = request.network.value_or(plan.network);
    plan.counts = request.counts.value_or(plan.counts);
}

history::OnceBetween onceBetween(const DaysRequest &days)
{
    daysOf(days); // in this order
    return {optionDay("--from", *days.from), optionDay("--to", *days.to)};
}

history::EveryDays everyDays(const std::string &days, const std::optional<std::string> &from)
{
    if (!from)
        throw Failure(ExitCode::Usage, "--every needs --from, the first day of a period.");
    return {optionCount("--every", days, history::longestCycle), optionDay("--from", *from)};
}

void setPeriod(DataPlan &plan, const PlanRequest &request)
{
    constexpr std::int64_t lastOfAnyMonth = 31;
    const auto &[from, to] = request.days;
    if (request.monthly)
        plan.period =
            history::MonthlyFrom{optionCount("--monthly", *request.monthly, lastOfAnyMonth)};
    else if (request.every)
        plan.period = everyDays(*request.every, from);
    else if (from && to)
        plan.period = onceBetween(request.days);
    else if (from || to)
        throw Failure(ExitCode::Usage, "A plan is for --every DAYS --from DATE, or once --from "
                                       "DATE --to DATE.");
}

/// What was used elsewhere is of the period that today lies in.
void setAlreadyUsed(DataPlan &plan, const std::string &text)
{
    const std::int64_t bytes = optionSize("--already-used", text);
    if (!usage::setUsedElsewhere(plan, bytes, usage::localDay(std::time(nullptr))))
        throw Failure(ExitCode::Refused, "Nothing can be already used of the plan \"" + plan.name +
                                             "\": today lies in no period of it.");
}

void setWhatIsGiven(DataPlan &plan, const PlanRequest &request)
{
    if (request.amount && *request.amount == nothing)
        plan.amount.reset();
    else if (request.amount)
        plan.amount = optionSize("--amount", *request.amount);
    setCoverage(plan, request);
    setPeriod(plan, request);
    if (request.alreadyUsed)
        setAlreadyUsed(plan, *request.alreadyUsed);
    if (request.warnings)
        usage::setWarnings(plan, *request.warnings == nothing ? std::vector<int>()
                                                              : percentagesIn(*request.warnings));
}

std::optional<DataPlan> findPlan(const history::Store &store, const std::string &name)
{
    for (const DataPlan &plan : valueOrFailure(store.plans())) {
        if (plan.name == name)
            return plan;
    }
    return std::nullopt;
}

Failure noPlan(const std::string &storePath, const std::string &name)
{
    return {ExitCode::Refused, "The history \"" + storePath + "\" has no plan \"" + name +
                                   "\"; connrecord plan list shows the plans."};
}

DataPlan changedPlan(DataPlan plan, const PlanRequest &request)
{
    setWhatIsGiven(plan, request);
    return plan;
}

/// What another program changes between reading and writing is kept too.
DataPlan changeOrMakePlan(history::Store &store, const DataPlan &ifNew, const PlanRequest &request)
{
    auto former = findPlan(store, ifNew.name);
    for (;;) {
        DataPlan plan = former ? changedPlan(*former, request) : ifNew;
        const auto outcome =
            valueOrFailure(usage::replacePlan(store, plan, former, std::time(nullptr)));
        if (const auto *const key = std::get_if<std::int64_t>(&outcome)) {
            plan.key = *key;
            return plan;
        }
        former = std::get<DataPlan>(outcome);
    }
}

void show(const CommonRequest &common, const DataPlan &plan)
{
    Output().write(common.json ? formats::jsonText(toJson(plan)) : toTable({plan}));
}

} // namespace

void listPlans(const CommonRequest &common)
{
    const auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    const std::vector<DataPlan> plans = valueOrFailure(store.plans());
    Output().write(common.json ? formats::jsonText(toJson(plans)) : toTable(plans));
}

void setPlan(const CommonRequest &common, const PlanRequest &request)
{
    DataPlan plan;
    plan.name = optionText("NAME", request.name);
    plan = changedPlan(plan, request); // so that no history is made for what is wrong
    auto store = valueOrFailure(history::Store::openOrCreate(common.storePath));
    show(common, changeOrMakePlan(store, plan, request));
}

void removePlan(const CommonRequest &common, const std::string &name)
{
    auto store = valueOrFailure(history::Store::openForReading(common.storePath));
    if (!valueOrFailure(store.removePlan(name)))
        throw noPlan(common.storePath, name);
    if (common.json)
        Output().write(formats::jsonText({{"removed", name}}));
}

DataPlan planNamed(const history::Store &store, const std::string &storePath,
                   const std::string &name)
{
    auto plan = findPlan(store, name);
    if (!plan)
        throw noPlan(storePath, name);
    return *std::move(plan);
}

} // namespace connrecord
