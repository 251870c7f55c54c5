// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryRow.h"

#include <QMetaType>

class QTableWidget;

namespace refdialer
{

class ShownConnections;

struct HistoryOrder {
    HistoryColumn column = HistoryColumn::Start;
    Qt::SortOrder direction = Qt::DescendingOrder;
};

/// Puts the rows in this order, once, and what they show with them; those that are equal
/// in it stand newest first. Cells, selection and current cell move with their rows, and
/// the table's own sorting stays as it is.
void sortRows(QTableWidget &table, const HistoryOrder &order, ShownConnections &shown);

} // namespace refdialer

Q_DECLARE_METATYPE(refdialer::HistoryOrder)
