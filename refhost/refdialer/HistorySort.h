// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"

#include <QMetaType>

#include <vector>

class QTableWidget;

namespace refhost
{

struct Connection;
class TrueValues;

struct HistoryOrder {
    HistoryColumn column = HistoryColumn::Start;
    Qt::SortOrder direction = Qt::DescendingOrder;
};

/// Puts the rows in this order, once; those that are equal in it stand newest
/// first. Cells, selection and current cell move with their rows, and the
/// table's own sorting stays as it is. Returns what the rows show now, from the top.
std::vector<Connection> sortRows(QTableWidget &table, const HistoryOrder &order, TrueValues values);

} // namespace refhost

Q_DECLARE_METATYPE(refhost::HistoryOrder)
