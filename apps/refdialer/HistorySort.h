// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"

#include <QMetaType>

#include <vector>

class QTableWidget;

namespace history
{
struct Connection;
}

namespace refdialer
{

class TrueValues;

struct HistoryOrder {
    HistoryColumn column = HistoryColumn::Start;
    Qt::SortOrder direction = Qt::DescendingOrder;
};

/// Puts the rows in this order, once; those that are equal in it stand newest
/// first. Cells, selection and current cell move with their rows, and the
/// table's own sorting stays as it is. Returns what the rows show now, from the top.
std::vector<history::Connection> sortRows(QTableWidget &table, const HistoryOrder &order,
                                          TrueValues values);

} // namespace refdialer

Q_DECLARE_METATYPE(refdialer::HistoryOrder)
