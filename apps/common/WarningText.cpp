// SPDX-License-Identifier: MIT
#include "WarningText.h"

#include "usage/PlanWarnings.h"
#include "usage/SizeText.h"

#include <QCoreApplication>

namespace common
{

using usage::Rounding;

namespace
{

class WarningText
{
    Q_DECLARE_TR_FUNCTIONS(common::WarningText)

public:
    static QString title(const QString &plan, int percent);
    static QString details(const QString &amount, const usage::PlanStatus &status);
};

QString WarningText::title(const QString &plan, int percent)
{
    return tr("%1 % of the data plan \"%2\" used").arg(QString::number(percent), plan);
}

QString WarningText::details(const QString &amount, const usage::PlanStatus &status)
{
    const QString used = usage::sizeText(status.used, Rounding::Down);
    const QString last = status.period.last().toString(Qt::ISODate);
    if (status.isSpent())
        return tr("%1 of %2; the period lasts until %3.").arg(used, amount, last);
    return tr("%1 of %2, %3 left until %4.")
        .arg(used, amount, usage::sizeText(status.left.value_or(0), Rounding::Down), last);
}

} // namespace

QString warningTitle(const usage::ReachedPlan &reached, int percent)
{
    return WarningText::title(QString::fromStdString(reached.plan.name), percent);
}

QString warningDetails(const usage::ReachedPlan &reached)
{
    const QString amount = usage::sizeText(reached.plan.amount.value_or(0), Rounding::Down);
    return WarningText::details(amount, reached.status);
}

QString warningText(const usage::ReachedPlan &reached, int percent)
{
    return QStringLiteral("%1: %2").arg(warningTitle(reached, percent), warningDetails(reached));
}

} // namespace common
