// SPDX-License-Identifier: MIT
#include "RowSelection.h"

#include <QHash>
#include <QItemSelection>
#include <QTableWidget>

namespace refhost
{

namespace
{

/// What the row shows, in one text; empty if there is no such row.
QString contentOf(const QTableWidget &table, int row)
{
    QString content;
    for (int column = 0; row >= 0 && column < table.columnCount(); ++column) {
        if (const QTableWidgetItem *const item = table.item(row, column))
            content += item->text();
        content += QLatin1Char('\n');
    }
    return content;
}

QList<int> selectedRows(const QTableWidget &table)
{
    QList<int> rows;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    return rows;
}

/// A range for each run of rows: one for each row would make every later look at
/// a long selection slow.
void appendRow(QItemSelection &selection, const QAbstractItemModel &model, int row)
{
    const bool isNext = !selection.isEmpty() && selection.last().bottom() == row - 1;
    const int top = isNext ? selection.takeLast().top() : row;
    selection.append({model.index(top, 0), model.index(row, model.columnCount() - 1)});
}

} // namespace

RowSelection::RowSelection(QTableWidget &table)
    : m_table(table)
    , m_current(contentOf(table, table.currentRow()))
    , m_currentColumn(table.currentColumn())
{
    for (const int row : selectedRows(table))
        m_selected.append(contentOf(table, row));
}

void RowSelection::restore() const
{
    QHash<QString, int> wanted;
    for (const QString &content : m_selected)
        ++wanted[content];
    QItemSelection selection;
    QModelIndex current;
    const QAbstractItemModel &model = *m_table.model();
    const bool hasAny = !m_selected.isEmpty() || !m_current.isEmpty();
    for (int row = 0; hasAny && row < m_table.rowCount(); ++row) {
        const QString content = contentOf(m_table, row);
        if (wanted.value(content) > 0) {
            --wanted[content];
            appendRow(selection, model, row);
        }
        if (!current.isValid() && content == m_current)
            current = model.index(row, m_currentColumn);
    }
    m_table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

} // namespace refhost
