// SPDX-License-Identifier: MIT
#include "SamplePlans.h"

#include <QDate>
#include <QStringList>

using namespace history;

namespace
{

JulianDay dayNumber(int year, int month, int day)
{
    return QDate(year, month, day).toJulianDay();
}

QString dayText(JulianDay day)
{
    return QDate::fromJulianDay(day).toString(Qt::ISODate);
}

QString textOf(const std::optional<UsedElsewhere> &elsewhere)
{
    return elsewhere ? QString("%1 on %2").arg(elsewhere->bytes).arg(dayText(elsewhere->day))
                     : "none";
}

} // namespace

DataPlan planCalled(const std::string &name, std::optional<std::int64_t> amount)
{
    DataPlan plan;
    plan.name = name;
    plan.amount = amount;
    return plan;
}

DataPlan prepaid()
{
    DataPlan plan = planCalled("Prepaid \xc3\xa9", 9223372036854775807);
    plan.covers = DataPlan::Covers::Sim;
    plan.covered = "8949000000000001234";
    plan.network = DataPlan::Network::Roaming;
    plan.counts = DataPlan::Counts::Sent;
    plan.period = OnceBetween{dayNumber(2026, 11, 10), dayNumber(2026, 12, 9)};
    plan.usedElsewhere = UsedElsewhere{-5, dayNumber(2026, 11, 12)};
    plan.warnAtPercent = {50, 120};
    return plan;
}

QString textOf(const DataPlan &plan)
{
    return QStringList{QString::fromStdString(plan.name),
                       nameOf(coverNames, plan.covers),
                       QString::fromStdString(plan.covered),
                       nameOf(networkNames, plan.network),
                       nameOf(countNames, plan.counts),
                       plan.amount ? QString::number(*plan.amount) : "none",
                       ruleText(plan.period),
                       textOf(plan.usedElsewhere),
                       textOf(plan.warnAtPercent)}
        .join("|");
}

QString ruleText(const PeriodRule &rule)
{
    if (const auto *monthly = std::get_if<MonthlyFrom>(&rule))
        return QString("monthly %1").arg(monthly->day);
    if (const auto *every = std::get_if<EveryDays>(&rule))
        return QString("every %1 from %2").arg(every->days).arg(dayText(every->from));
    const auto &once = std::get<OnceBetween>(rule);
    return QString("%1 to %2").arg(dayText(once.first), dayText(once.last));
}

QString textOf(const std::vector<int> &percentages)
{
    QStringList texts;
    for (const int each : percentages)
        texts << QString::number(each);
    return texts.join(',');
}
