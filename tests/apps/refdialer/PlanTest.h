// SPDX-License-Identifier: MIT
#pragma once

#include "FakeClock.h"
#include "PlanSamples.h"
#include "StoreSamples.h"
#include "StoreTestCase.h"
#include "apps/refdialer/PlanWatch.h"

#include <memory>

constexpr std::int64_t megabyte = 1 << 20;
constexpr std::int64_t gigabyte = 1 << 30;

/// Tests of what the window shows of plans, in English, on a store of their own and at noon of
/// the 19th of November 2026.
class PlanTest : public StoreTestCase
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// Returns when the watch knows what the store has now.
    void readPlans();

    std::unique_ptr<history::Store> m_store;
    FakeClock *m_clock = nullptr; ///< the watch's
    std::unique_ptr<refdialer::PlanWatch> m_watch;
};

/// A plan from the first of each month.
history::DataPlan planCalled(const std::string &name,
                             std::optional<std::int64_t> amount = std::nullopt);

/// A connection that received so much in the hour that begins then.
history::Connection movedIn(const QString &hour, std::int64_t bytes, bool isRoaming = false);
