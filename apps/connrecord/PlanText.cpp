// SPDX-License-Identifier: MIT
#include "PlanText.h"

#include "ConnectionText.h"
#include "TextTable.h"
#include "formats/JsonText.h"

#include <QDate>
#include <QStringList>

namespace connrecord
{

namespace
{

using formats::Json;
using history::DataPlan;
using history::JulianDay;

QString dayText(JulianDay day)
{
    return QDate::fromJulianDay(day).toString(Qt::ISODate);
}

struct RuleText {
    QString operator()(const history::MonthlyFrom &rule) const
    {
        return QStringLiteral("monthly from day %1").arg(rule.day);
    }
    QString operator()(const history::EveryDays &rule) const
    {
        return QStringLiteral("every %1 days from %2").arg(rule.days).arg(dayText(rule.from));
    }
    QString operator()(const history::OnceBetween &rule) const
    {
        return QStringLiteral("once from %1 to %2").arg(dayText(rule.first), dayText(rule.last));
    }
};

struct RuleJson {
    Json operator()(const history::MonthlyFrom &rule) const { return {{"monthly", rule.day}}; }
    Json operator()(const history::EveryDays &rule) const
    {
        return {{"every", rule.days}, {"from", dayText(rule.from).toStdString()}};
    }
    Json operator()(const history::OnceBetween &rule) const
    {
        return {{"from", dayText(rule.first).toStdString()},
                {"to", dayText(rule.last).toStdString()}};
    }
};

QString coverageText(const DataPlan &plan)
{
    QString kind = QLatin1String(nameOf(history::coverNames, plan.covers));
    switch (plan.covers) {
    case DataPlan::Covers::Everything:
        return kind;
    case DataPlan::Covers::Profile:
        return kind + QLatin1Char(' ') + nameText(plan.covered);
    case DataPlan::Covers::Sim:
        return kind + QLatin1Char(' ') + simText(plan.covered);
    }
    return kind;
}

QString alreadyUsedText(const DataPlan &plan)
{
    const auto &elsewhere = plan.usedElsewhere;
    return elsewhere ? QStringLiteral("%1 on %2")
                           .arg(sizeIfAny(elsewhere->bytes), dayText(elsewhere->day))
                     : QString();
}

QString warningsText(const DataPlan &plan)
{
    QStringList texts;
    for (const int percent : plan.warnAtPercent)
        texts.append(QString::number(percent));
    return texts.join(QLatin1Char(','));
}

std::vector<QString> row(const DataPlan &plan)
{
    return {nameText(plan.name),
            coverageText(plan),
            QLatin1String(nameOf(history::networkNames, plan.network)),
            QLatin1String(nameOf(history::countNames, plan.counts)),
            sizeIfAny(plan.amount),
            std::visit(RuleText(), plan.period),
            alreadyUsedText(plan),
            warningsText(plan)};
}

Json toJson(const std::optional<history::UsedElsewhere> &elsewhere)
{
    if (!elsewhere)
        return nullptr;
    return {{"bytes", elsewhere->bytes}, {"day", dayText(elsewhere->day).toStdString()}};
}

} // namespace

QByteArray toTable(const std::vector<DataPlan> &plans)
{
    using Alignment = TextTable::Alignment;
    TextTable table({{"PLAN", Alignment::Left},
                     {"COVERS", Alignment::Left},
                     {"NETWORK", Alignment::Left},
                     {"COUNTS", Alignment::Left},
                     {"AMOUNT", Alignment::Right},
                     {"PERIOD", Alignment::Left},
                     {"ALREADY USED", Alignment::Left},
                     {"WARN AT %", Alignment::Left}});
    for (const DataPlan &plan : plans)
        table.addRow(row(plan));
    return table.text();
}

Json toJson(const DataPlan &plan)
{
    return {{"name", plan.name},
            {"covers", nameOf(history::coverNames, plan.covers)},
            {"covered", plan.covered},
            {"network", nameOf(history::networkNames, plan.network)},
            {"counts", nameOf(history::countNames, plan.counts)},
            {"amount_bytes", numberIfAny(plan.amount)},
            {"period", std::visit(RuleJson(), plan.period)},
            {"already_used", toJson(plan.usedElsewhere)},
            {"warn_at_percent", plan.warnAtPercent}};
}

Json toJson(const std::vector<DataPlan> &plans)
{
    Json array = Json::array();
    for (const DataPlan &plan : plans)
        array.push_back(toJson(plan));
    return array;
}

QString sizeIfAny(const std::optional<std::int64_t> &bytes)
{
    return bytes ? usage::sizeText(*bytes, usage::Rounding::Down) : QString();
}

Json numberIfAny(const std::optional<std::int64_t> &number)
{
    return number ? Json(*number) : Json();
}

} // namespace connrecord
