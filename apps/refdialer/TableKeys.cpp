// SPDX-License-Identifier: MIT
#include "TableKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include <algorithm>
#include <vector>

namespace refdialer
{

namespace
{

/// From the left, in the order in which they stand.
std::vector<int> shownColumns(const QTableWidget &table)
{
    std::vector<int> columns;
    for (int place = 0; place < table.columnCount(); ++place) {
        const int column = table.horizontalHeader()->logicalIndex(place);
        if (!table.isColumnHidden(column))
            columns.push_back(column);
    }
    return columns;
}

std::vector<int> selectedRows(const QTableWidget &table)
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!table.isRowHidden(row))
                rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QString rowText(const QTableWidget &table, int row, const std::vector<int> &columns)
{
    // Every delegate of Qt's own writes a value in this way.
    const QStyledItemDelegate delegate;
    QStringList cells;
    for (const int column : columns) {
        const QVariant value = table.model()->index(row, column).data(Qt::DisplayRole);
        // What tells the cells apart must not stand in one.
        cells.append(delegate.displayText(value, table.locale()).simplified());
    }
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

int rowForMenu(const QTableWidget &table)
{
    if (table.currentRow() >= 0 && !table.isRowHidden(table.currentRow()))
        return table.currentRow();
    const std::vector<int> selected = selectedRows(table);
    return selected.empty() ? table.rowAt(0) : selected.front();
}

} // namespace

QString selectedText(const QTableWidget &table)
{
    const std::vector<int> columns = shownColumns(table);
    QString text;
    for (const int row : selectedRows(table))
        text += rowText(table, row, columns);
    return text;
}

void openContextMenu(QTableWidget &table)
{
    const std::vector<int> columns = shownColumns(table);
    const int row = rowForMenu(table);
    if (row < 0 || columns.empty())
        return;
    const QModelIndex index =
        table.model()->index(row, std::max(table.currentColumn(), columns.front()));
    table.scrollTo(index);
    // What is not selected would be by such a click.
    if (!table.selectionModel()->isRowSelected(row, QModelIndex()))
        table.selectRow(row);
    const QRect cell = table.visualRect(index).intersected(table.viewport()->rect());
    QContextMenuEvent click(QContextMenuEvent::Mouse, cell.center(),
                            table.viewport()->mapToGlobal(cell.center()));
    QApplication::sendEvent(table.viewport(), &click);
}

} // namespace refdialer
