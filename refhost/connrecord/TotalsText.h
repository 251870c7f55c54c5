// SPDX-License-Identifier: MIT
#pragma once

#include "StatisticsStore.h"

#include <QByteArray>
#include <QDate>
#include <QJsonArray>

#include <vector>

namespace refhost
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
QByteArray toTable(const std::vector<Totals> &totals, const TotalsGroups &groups);

/// The totals for programs: exact integers, months as yyyy-MM.
QJsonArray toJson(const std::vector<Totals> &totals, const TotalsGroups &groups);

} // namespace refhost
