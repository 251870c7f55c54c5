// SPDX-License-Identifier: MIT
#include "StatusText.h"

#include "ConnectionText.h"
#include "PlanText.h"
#include "TextTable.h"
#include "formats/JsonText.h"
#include "usage/SizeText.h"

#include <string>

namespace connrecord
{

namespace
{

using formats::Json;
using usage::PeriodUse;
using usage::PlanState;
using usage::PlanStatus;
using usage::StandingPlan;

const char *nameOf(PlanState state)
{
    switch (state) {
    case PlanState::NoPeriod:
        return "no period";
    case PlanState::Within:
        return "within";
    case PlanState::Warned:
        return "warned";
    case PlanState::Spent:
        return "spent";
    }
    return "";
}

std::string dayText(const QDate &day)
{
    return day.toString(Qt::ISODate).toStdString();
}

QString stateText(const StandingPlan &standing)
{
    const PlanState state = stateOf(standing);
    if (state == PlanState::Warned)
        return QStringLiteral("%1 % reached").arg(standing.status->warnings.back());
    return QLatin1String(nameOf(state));
}

/// Used and left are rounded down: neither reads as more than it is, together they never come to
/// more than the amount, and it does not read as used up before it is.
std::vector<QString> row(const StandingPlan &standing)
{
    const QString name = nameText(standing.plan.name);
    const QString amount = sizeIfAny(standing.plan.amount);
    if (!standing.status)
        return {name, {}, {}, amount, {}, {}, {}, {}, stateText(standing)};
    const PlanStatus &status = *standing.status;
    const QString period = QString::fromStdString(dayText(status.period.first) + " to " +
                                                  dayText(status.period.last()));
    return {name,
            period,
            sizeIfAny(status.used),
            amount,
            sizeIfAny(status.left),
            QString::number(status.daysLeft),
            sizeIfAny(status.leftADay),
            sizeIfAny(status.pace),
            stateText(standing)};
}

Json toJson(const PeriodUse &use)
{
    return {{"first", dayText(use.period.first)},
            {"last", dayText(use.period.last())},
            {"used_bytes", use.used},
            {"left_bytes", numberIfAny(use.left)}};
}

Json toJson(const PlanStatus &status)
{
    Json object = toJson(static_cast<const PeriodUse &>(status));
    object["days_left"] = status.daysLeft;
    object["left_a_day_bytes"] = numberIfAny(status.leftADay);
    object["pace_bytes"] = numberIfAny(status.pace);
    object["reached_percent"] = status.warnings;
    return object;
}

Json toJson(const PlanReport &standing)
{
    Json past = Json::array();
    for (const PeriodUse &use : standing.past)
        past.push_back(toJson(use));
    return {{"plan", standing.plan.name},
            {"state", nameOf(stateOf(standing))},
            {"amount_bytes", numberIfAny(standing.plan.amount)},
            {"period", standing.status ? toJson(*standing.status) : Json()},
            {"periods_before", past}};
}

} // namespace

QByteArray toTable(const std::vector<PlanReport> &plans)
{
    using Alignment = TextTable::Alignment;
    TextTable table({{"PLAN", Alignment::Left},
                     {"PERIOD", Alignment::Left},
                     {"USED", Alignment::Right},
                     {"AMOUNT", Alignment::Right},
                     {"LEFT", Alignment::Right},
                     {"DAYS LEFT", Alignment::Right},
                     {"A DAY", Alignment::Right},
                     {"PACE", Alignment::Right},
                     {"STATE", Alignment::Left}});
    for (const PlanReport &each : plans)
        table.addRow(row(each));
    return table.text();
}

Json toJson(const std::vector<PlanReport> &plans)
{
    Json array = Json::array();
    for (const PlanReport &each : plans)
        array.push_back(toJson(each));
    return array;
}

} // namespace connrecord
