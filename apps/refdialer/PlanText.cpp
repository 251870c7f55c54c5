// SPDX-License-Identifier: MIT
#include "PlanText.h"

#include "usage/SaturatingMath.h"
#include "usage/SizeText.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace refdialer
{

using history::PeriodRule;
using usage::PlanState;
using usage::PlanStatus;
using usage::Rounding;
using usage::shortSizeText;
using usage::StandingPlan;

namespace
{

QString dayText(const QDate &day, const QLocale &locale)
{
    return locale.toString(day, QLocale::ShortFormat);
}

bool isTooFast(const StandingPlan &standing)
{
    const auto &amount = standing.plan.amount;
    const auto &pace = standing.status->pace;
    return amount && pace && *pace > *amount;
}

} // namespace

QString PlanText::figures(const StandingPlan &standing, const QDate &today, const QLocale &locale)
{
    if (!standing.status)
        return outsidePeriods(standing.plan.period, today, locale);
    return standing.plan.amount ? ofPeriod(*standing.status, *standing.plan.amount)
                                : ofUnlimited(*standing.status);
}

QString PlanText::ofPeriod(const PlanStatus &status, std::int64_t amount)
{
    const auto [used, whole] = usage::shortPartText(status.used, amount);
    const std::int64_t left = status.left.value_or(0);
    const QString over = shortSizeText(usage::saturatingDifference(0, left), Rounding::Down);
    const bool isLastDay = status.daysLeft == 1;
    if (left < 0 && isLastDay)
        return tr("%1 of %2 used, %3 over, today is the last day").arg(used, whole, over);
    if (left < 0)
        return tr("%1 of %2 used, %3 over, %n days left", nullptr, status.daysLeft)
            .arg(used, whole, over);
    if (isLastDay)
        return tr("%1 of %2 used, %3 left, today is the last day")
            .arg(used, whole, shortSizeText(left, Rounding::Down));
    return tr("%1 of %2 used, %n days left, %3 a day", nullptr, status.daysLeft)
        .arg(used, whole, shortSizeText(status.leftADay.value_or(0), Rounding::Down));
}

QString PlanText::ofUnlimited(const PlanStatus &status)
{
    const QString used = shortSizeText(status.used, Rounding::Down);
    if (status.daysLeft == 1)
        return tr("%1 used, today is the last day").arg(used);
    return tr("%1 used, %n days left", nullptr, status.daysLeft).arg(used);
}

/// A plan for every month has no such days.
QString PlanText::outsidePeriods(const PeriodRule &rule, const QDate &today, const QLocale &locale)
{
    if (const auto *const once = std::get_if<history::OnceBetween>(&rule)) {
        const QDate last = QDate::fromJulianDay(once->last);
        if (last < today)
            return tr("ended on %1").arg(dayText(last, locale));
        return tr("begins on %1").arg(dayText(QDate::fromJulianDay(once->first), locale));
    }
    if (const auto *const every = std::get_if<history::EveryDays>(&rule))
        return tr("begins on %1").arg(dayText(QDate::fromJulianDay(every->from), locale));
    return {};
}

QString PlanText::alarm(const StandingPlan &standing)
{
    switch (stateOf(standing)) {
    case PlanState::NoPeriod:
        return {};
    case PlanState::Within:
        return isTooFast(standing)
                   ? tr("Heading for %1").arg(shortSizeText(*standing.status->pace, Rounding::Down))
                   : QString();
    case PlanState::Warned:
        return tr("%1 % reached").arg(standing.status->warnings.back());
    case PlanState::Spent:
        return tr("Used up");
    }
    return {};
}

QString PlanText::details(const StandingPlan &standing, const QLocale &locale)
{
    if (!standing.status)
        return {};
    const PlanStatus &status = *standing.status;
    QStringList sentences{
        tr("The period is from %1 to %2.")
            .arg(dayText(status.period.first, locale), dayText(status.period.last(), locale))};
    if (status.left)
        sentences.append(leftText(*status.left));
    // What takes off more than was used makes it less than nothing.
    if (status.pace && *status.pace >= 0)
        sentences.append(tr("At this pace it will be %1 in the end.")
                             .arg(usage::sizeText(*status.pace, Rounding::Down)));
    return sentences.join(QLatin1Char(' '));
}

QString PlanText::leftText(std::int64_t left)
{
    if (left >= 0)
        return tr("%1 left.").arg(usage::sizeText(left, Rounding::Down));
    return tr("%1 over.")
        .arg(usage::sizeText(usage::saturatingDifference(0, left), Rounding::Down));
}

QString PlanText::period(const PeriodRule &rule, const QLocale &locale)
{
    const auto day = [&locale](history::JulianDay number) {
        return dayText(QDate::fromJulianDay(number), locale);
    };
    if (const auto *const monthly = std::get_if<history::MonthlyFrom>(&rule))
        return tr("Monthly from day %1").arg(monthly->day);
    if (const auto *const every = std::get_if<history::EveryDays>(&rule))
        return tr("Every %n days from %1", nullptr, static_cast<int>(every->days))
            .arg(day(every->from));
    const auto &once = std::get<history::OnceBetween>(rule);
    return tr("Once from %1 to %2").arg(day(once.first), day(once.last));
}

std::optional<int> percentUsed(const StandingPlan &standing)
{
    const auto &amount = standing.plan.amount;
    if (!standing.status || !amount)
        return std::nullopt;
    const std::int64_t used = std::max<std::int64_t>(0, standing.status->used);
    if (*amount == 0)
        return 100;
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(most, usage::scaledDown(used, 100, *amount)));
}

} // namespace refdialer
