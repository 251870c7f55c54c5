// SPDX-License-Identifier: MIT
// The arithmetic of data plans, their periods and figures, against a slow plain model, in
// zones whose clocks are odd.
#include "ByteReader.h"
#include "Fuzz.h"
#include "SlowPlan.h"
#include "usage/BillingPeriod.h"
#include "usage/LocalDays.h"
#include "usage/PlanStatus.h"

#include <time.h>

#include <cstdlib>

using namespace history;
using namespace usage;

namespace
{

constexpr const char *zones[] = {"Europe/Berlin",       "America/New_York",   "Asia/Kolkata",
                                 "Australia/Lord_Howe", "Pacific/Kiritimati", "Pacific/Apia",
                                 "America/Sao_Paulo",   "America/Havana",     "UTC"};

void setZone(int number)
{
    static int present = -1;
    if (number == present)
        return;
    present = number;
    setenv("TZ", zones[number], 1);
    tzset();
}

JulianDay dayFrom(fuzz::ByteReader &bytes)
{
    // Up to the last day whose seconds the store keeps.
    constexpr std::int64_t days = largestTime / 86400;
    return firstPlanDay + bytes.number(2) % days;
}

PeriodRule ruleFrom(fuzz::ByteReader &bytes)
{
    switch (bytes.below(3)) {
    case 0:
        return MonthlyFrom{1 + bytes.below(31)};
    case 1: {
        const std::int64_t days = 1 + bytes.number(2) % longestCycle;
        return EveryDays{days, dayFrom(bytes)};
    }
    default: {
        const JulianDay first = dayFrom(bytes);
        return OnceBetween{first, first + bytes.number(2) % 1000};
    }
    }
}

DataPlan planFrom(fuzz::ByteReader &bytes)
{
    DataPlan plan;
    plan.name = "plan";
    plan.period = ruleFrom(bytes);
    if (bytes.below(4) != 0)
        plan.amount = bytes.number(8) & largestByteCount;
    if (bytes.below(2) == 0) {
        const JulianDay day = dayFrom(bytes);
        plan.usedElsewhere = UsedElsewhere{bytes.number(8), day};
    }
    plan.warnAtPercent.clear();
    for (int percent = 1 + bytes.below(100); percent <= highestPercentage && bytes.below(4) != 0;
         percent += 1 + bytes.byte())
        plan.warnAtPercent.push_back(percent);
    return plan;
}

void checkPeriod(const DataPlan &plan, const SlowPlan &model, const BillingPeriod &period)
{
    fuzz::require(period.beginUtc() == SlowPlan::beginOf(period.first), "the period begins then");
    fuzz::require(period.endUtc() == SlowPlan::beginOf(period.end), "the period ends then");
    const auto before = periodBefore(plan.period, period);
    fuzz::require(before == model.periodOf(period.first.addDays(-1)), "the period before");
    fuzz::require(!before || before->end == period.first, "periods follow each other");
}

void checkEnded(const DataPlan &plan, const std::optional<BillingPeriod> &present, std::int64_t utc)
{
    const auto ended = periodEndedBy(plan.period, utc);
    fuzz::require(!ended || ended->endUtc() <= utc, "what has ended is over");
    fuzz::require(!ended || !present || ended->end == present->first, "and was the last one");
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::ByteReader bytes(data, size);
    setZone(bytes.below(std::size(zones)));
    const DataPlan plan = planFrom(bytes);
    const SlowPlan model(plan);
    const std::int64_t utc = bytes.number(4);
    const std::int64_t used = bytes.number(8) & largestByteCount;

    fuzz::require(periodOf(plan.period, localDay(utc)) == model.periodOf(SlowPlan::dayAt(utc)),
                  "the period of a day");
    const auto period = periodAt(plan.period, utc);
    fuzz::require(period == model.periodAt(utc), "the period of a moment");
    fuzz::require(PeriodFinder(plan.period).at(utc) == period, "and to who asks for many");
    checkEnded(plan, period, utc);
    if (!period)
        return 0;
    checkPeriod(plan, model, *period);
    const char *const complaint =
        model.complaint(statusOf(plan, *period, used, utc), *period, used, utc);
    fuzz::require(complaint == nullptr, complaint ? complaint : "the figures");
    return 0;
}
