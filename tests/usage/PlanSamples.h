// SPDX-License-Identifier: MIT
#pragma once

#include "usage/PlanUse.h"

#include <QDateTime>
#include <QString>

/// What tests of plans have in common; days and times are in ISO 8601.

inline history::JulianDay dayNumber(const char *text)
{
    return QDate::fromString(QLatin1String(text), Qt::ISODate).toJulianDay();
}

inline std::int64_t utcOf(const QString &text)
{
    return QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch();
}

inline QString dayText(const QDate &day)
{
    return day.toString(Qt::ISODate);
}

inline history::DataPlan planOf(const history::PeriodRule &rule, std::int64_t amount = 10000)
{
    history::DataPlan plan;
    plan.name = "plan";
    plan.amount = amount;
    plan.period = rule;
    return plan;
}

/// "first to last: used, left, days left, a day, pace"
inline QString textOf(const history::Result<std::optional<usage::PlanStatus>> &result)
{
    if (!result)
        return QString::fromStdString(result.error().message);
    if (!result.value())
        return "none";
    const usage::PlanStatus &status = *result.value();
    return QString("%1 to %2: %3, %4, %5, %6, %7")
        .arg(dayText(status.period.first), dayText(status.period.last()))
        .arg(status.used)
        .arg(*status.left)
        .arg(status.daysLeft)
        .arg(*status.leftADay)
        .arg(status.pace ? QString::number(*status.pace) : "no pace");
}
