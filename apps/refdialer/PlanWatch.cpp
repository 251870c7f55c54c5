// SPDX-License-Identifier: MIT
#include "PlanWatch.h"

#include "apps/common/StoreErrorText.h"
#include "usage/LocalDays.h"

#include <QDateTime>

#include <chrono>
#include <tuple>
#include <utility>

namespace refdialer
{

using history::Result;
using history::Store;
using history::StoreError;

namespace
{

constexpr std::chrono::seconds interval(1);
constexpr std::int64_t secondsPerMinute = 60;

} // namespace

bool PlanWatch::Occasion::operator==(const Occasion &other) const
{
    return std::tie(revision, minute, offset) ==
           std::tie(other.revision, other.minute, other.offset);
}

PlanWatch::PlanWatch(const QString &storeFile, std::unique_ptr<recorder::SystemClock> clock,
                     QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_store(storeFile.toStdString())
{
    connect(&m_timer, &QTimer::timeout, this, &PlanWatch::look);
    m_timer.start(interval);
    look();
}

QDate PlanWatch::today() const
{
    return usage::localDay(utc());
}

void PlanWatch::look()
{
    if (std::exchange(m_isLooking, true))
        return;
    m_store.read(
        this,
        [utc = utc(), former = m_occasion](const Store &store) {
            return readPlans(store, utc, former);
        },
        [this](const Result<Answer> &answer) { take(answer); });
}

void PlanWatch::finish()
{
    m_store.finish();
}

/// The revision first: what is written while plans are read makes another look worth while.
Result<PlanWatch::Answer> PlanWatch::readPlans(const Store &store, std::int64_t utc,
                                               const std::optional<Occasion> &former)
{
    const auto revision = store.revision();
    if (!revision)
        return revision.error();
    const Occasion occasion{revision.value(), utc / secondsPerMinute,
                            QDateTime::fromSecsSinceEpoch(utc).offsetFromUtc()};
    if (occasion == former)
        return Answer{occasion, std::nullopt};
    auto plans = usage::standingPlans(store, utc);
    if (!plans)
        return plans.error();
    return Answer{occasion, std::move(plans.value())};
}

void PlanWatch::take(const Result<Answer> &answer)
{
    m_isLooking = false;
    if (!answer)
        return fail(answer.error());
    m_occasion = answer.value().occasion;
    if (!answer.value().plans)
        return;
    m_plans = *answer.value().plans;
    m_problem.clear();
    m_isRead = true;
    emit changed();
}

void PlanWatch::fail(const StoreError &error)
{
    if (error.kind == StoreError::Kind::Locked)
        return;
    m_occasion.reset();
    const QString problem = common::storeErrorText(error);
    if (std::exchange(m_problem, problem) == problem)
        return;
    m_plans.clear();
    m_isRead = false;
    emit changed();
}

} // namespace refdialer
