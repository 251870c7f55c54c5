// SPDX-License-Identifier: MIT
#pragma once

#include "history/DataPlan.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A plan from the first of each month.
history::DataPlan planCalled(const std::string &name,
                             std::optional<std::int64_t> amount = std::nullopt);

/// From the 10th of November to the 9th of December 2026; every value of it is said, and none is
/// what another plan has by default.
history::DataPlan prepaid();

/// Every value of it but the key, the last one being the percentages to warn at; days are in
/// ISO 8601.
QString textOf(const history::DataPlan &plan);
QString ruleText(const history::PeriodRule &rule);
/// "50,80"
QString textOf(const std::vector<int> &percentages);
