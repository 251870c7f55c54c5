// SPDX-License-Identifier: MIT
#pragma once

#include "formats/Json.h"
#include "usage/Totals.h"

#include <QByteArray>

#include <optional>
#include <string_view>
#include <vector>

namespace connrecord
{

/// How totals are told.
struct TotalsForm {
    usage::Grouping grouping;
    /// Of bytes that count when they moved, nobody knows for how long.
    bool showsTimeConnected = false;
};

/// The grouping that "profile,month" and the like name; nothing if they do not: a name
/// that is none, twice the same one, or two parts of the calendar.
std::optional<usage::Grouping> groupingOf(std::string_view names);

/// The sums as a table for people, with a column for each thing they are told apart by.
QByteArray toTable(const std::vector<usage::Sum> &sums, const TotalsForm &form);

/// The sums for programs: exact integers.
formats::Json toJson(const std::vector<usage::Sum> &sums, const TotalsForm &form);

} // namespace connrecord
