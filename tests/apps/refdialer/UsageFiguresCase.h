// SPDX-License-Identifier: MIT
#pragma once

#include "PlanSamples.h"
#include "StoreTestCase.h"
#include "apps/refdialer/UsageFigures.h"

#include <string>
#include <vector>

/// Tests of what a page of usage shows of a real store.
class UsageFiguresCase : public StoreTestCase
{
    Q_OBJECT

protected:
    /// Hours as "2026-10-31T22:00:00Z received/sent", with an r behind it if roaming.
    void store(const QStringList &hours, const std::string &profile = "internet");
    void storePlan(const std::string &name, const history::PeriodRule &rule,
                   history::DataPlan::Network network = history::DataPlan::Network::Both);
    refdialer::UsageFigures figures(const refdialer::UsageRequest &request,
                                    const char *today) const;
};

QDate dayOf(const char *text);
/// Of those bars with something in them: "2026-11-01: 40/4 + 20/2r".
QString textOf(const std::vector<usage::UsageBar> &bars);
QString spanText(const refdialer::UsageFigures &figures);
/// Each with the number of its kind in front.
QString namesOf(const std::vector<refdialer::UsageSubject> &subjects);
/// Of everything, on that day.
refdialer::UsageRequest requestFor(const char *day, usage::BarUnit unit = usage::BarUnit::Day);
