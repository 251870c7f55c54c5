// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidgetItem>
#include <QVariant>

class QTableWidget;
struct ConnectionRecord;

/// The cells of the history's table: what each column shows, and how a row leads to its
/// record.
namespace HistoryCells
{

struct Column {
    const char *headerId;
    int width; // pixels
};

constexpr int columnCount = 6;
constexpr int rowHeight = 14; // pixels
extern const Column columns[columnCount];

/// A cell as every one begins.
QTableWidgetItem common();
/// What the cell of a record shows in a column.
QVariant data(const ConnectionRecord &record, int column);

/// The row's link to its record, 0 in every column but the first.
QVariant link(const ConnectionRecord *record);
ConnectionRecord *linkedRecord(const QTableWidgetItem &item);

/// Whether anybody listens to the table's own signals about single cells.
bool haveListeners(const QTableWidget &table);
/// Hidden by the host, or under a cell that spans over it.
bool isHidden(const QTableWidget &table, int row, int column);

} // namespace HistoryCells
