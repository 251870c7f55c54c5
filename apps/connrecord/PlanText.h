// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Json.h"
#include "history/DataPlan.h"
#include "usage/SizeText.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace connrecord
{

/// The plans as a table for people.
QByteArray toTable(const std::vector<history::DataPlan> &plans);

/// The plan for programs: exact integers, and null for what it has not.
formats::Json toJson(const history::DataPlan &plan);
formats::Json toJson(const std::vector<history::DataPlan> &plans);

// What a plan, or its standing, need not have.
QString sizeIfAny(const std::optional<std::int64_t> &bytes);
formats::Json numberIfAny(const std::optional<std::int64_t> &number);

} // namespace connrecord
