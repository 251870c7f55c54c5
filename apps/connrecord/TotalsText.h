// SPDX-License-Identifier: MIT
#pragma once

#include "formats/JsonText.h"
#include "history/Store.h"

#include <QByteArray>
#include <QDate>

#include <vector>

namespace connrecord
{

/// What totals are told apart by; together at most one for each pair.
struct TotalsGroups {
    bool byProfile = false;
    bool byMonth = false;
};

/// A month as the period of totals.
int periodOfMonth(const QDate &day);

/// The totals as a table for people, with a column for each thing they are told
/// apart by.
QByteArray toTable(const std::vector<history::Totals> &totals, const TotalsGroups &groups);

/// The totals for programs: exact integers, months as yyyy-MM.
formats::Json toJson(const std::vector<history::Totals> &totals, const TotalsGroups &groups);

} // namespace connrecord
