// SPDX-License-Identifier: MIT
#include "UsageFigures.h"

#include "usage/LocalDays.h"

#include <algorithm>
#include <utility>

namespace refdialer
{

namespace
{

using history::DataPlan;
using history::Result;
using usage::BillingPeriod;
using Kind = UsageSubject::Kind;

std::vector<UsageSubject> subjectsOf(const std::vector<DataPlan> &plans,
                                     const history::Overview &overview)
{
    std::vector<UsageSubject> subjects(1);
    for (const DataPlan &plan : plans)
        subjects.push_back({Kind::Plan, plan.name, plan.key});
    for (const std::string &profile : overview.profiles)
        subjects.push_back({Kind::Profile, profile});
    for (const std::string &sim : overview.sims)
        subjects.push_back({Kind::Sim, sim});
    return subjects;
}

/// The one asked for, as it is called now.
UsageSubject chosenOf(const std::vector<UsageSubject> &subjects,
                      const std::optional<UsageSubject> &wanted)
{
    const auto found =
        std::find_if(subjects.begin(), subjects.end(), [&wanted](const UsageSubject &each) {
            return wanted ? each == *wanted : each.kind == Kind::Plan;
        });
    return found == subjects.end() ? UsageSubject() : *found;
}

/// What is no plan is one for its bytes by the calendar's months.
DataPlan planOf(const UsageSubject &subject, const std::vector<DataPlan> &plans)
{
    DataPlan plan;
    switch (subject.kind) {
    case Kind::Everything:
        break;
    case Kind::Plan:
        return *std::find_if(plans.begin(), plans.end(), [&subject](const DataPlan &each) {
            return each.key == subject.planKey;
        });
    case Kind::Profile:
        plan.covers = DataPlan::Covers::Profile;
        plan.covered = subject.name;
        break;
    case Kind::Sim:
        plan.covers = DataPlan::Covers::Sim;
        plan.covered = subject.name;
        break;
    }
    return plan;
}

void setNeighbours(UsageFigures &figures, const DataPlan &plan, const history::Overview &overview,
                   const QDate &today)
{
    const BillingPeriod &span = figures.span;
    const auto spanWith = [&](const QDate &day) {
        return usage::spanNear(plan.period, figures.unit, day);
    };
    const QDate before = span.first.addDays(-1);
    const bool hasBegunBefore =
        overview.firstUtc && usage::localDay(history::startOfHour(*overview.firstUtc)) < span.first;
    if (hasBegunBefore && spanWith(before).contains(before))
        figures.previous = before;
    if (span.end <= today && spanWith(span.end).contains(span.end))
        figures.next = span.end;
}

} // namespace

Result<UsageFigures> usageFigures(const history::Store &store, const UsageRequest &request,
                                  const QDate &today)
{
    const auto plans = store.plans();
    if (!plans)
        return plans.error();
    const auto overview = store.overview();
    if (!overview)
        return overview.error();
    UsageFigures figures;
    figures.subjects = subjectsOf(plans.value(), overview.value());
    figures.subject = chosenOf(figures.subjects, request.subject);
    figures.unit = request.unit;
    figures.isHistoryEmpty = !overview.value().firstUtc;
    const DataPlan plan = planOf(figures.subject, plans.value());
    figures.span =
        usage::spanNear(plan.period, request.unit, request.day.isNull() ? today : request.day);
    setNeighbours(figures, plan, overview.value(), today);
    auto bars = usage::usageBars(store, plan, request.unit, figures.span);
    if (!bars)
        return bars.error();
    figures.bars = std::move(bars.value());
    return figures;
}

} // namespace refdialer
