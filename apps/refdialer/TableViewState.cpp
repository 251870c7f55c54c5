// SPDX-License-Identifier: MIT
#include "TableViewState.h"

#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>
#include <unordered_map>

namespace refdialer
{

namespace
{

std::vector<std::uint64_t> selectedIdentities(const QTableWidget &table,
                                              const ShownConnections &shown)
{
    std::vector<std::uint64_t> identities;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            identities.push_back(shown.identity(row));
    }
    return identities;
}

std::vector<std::uint64_t> visibleIdentities(const QTableWidget &table,
                                             const ShownConnections &shown)
{
    const QScrollBar &bar = *table.verticalScrollBar();
    const int first = table.rowAt(0);
    std::vector<std::uint64_t> identities;
    if (bar.value() == bar.minimum() || first < 0)
        return identities;
    const int last = table.rowAt(table.viewport()->height() - 1);
    for (int row = first; row <= (last < 0 ? table.rowCount() - 1 : last); ++row) {
        if (!table.isRowHidden(row))
            identities.push_back(shown.identity(row));
    }
    return identities;
}

/// A range for each run of rows: one for each row would make every later look at
/// a long selection slow.
void appendRow(QItemSelection &selection, const QAbstractItemModel &model, int row)
{
    const bool isNext = !selection.isEmpty() && selection.last().bottom() == row - 1;
    const int top = isNext ? selection.takeLast().top() : row;
    selection.append({model.index(top, 0), model.index(row, model.columnCount() - 1)});
}

/// The row of this connection; -1 if it is not shown.
int rowOf(std::uint64_t identity, const ShownConnections &shown)
{
    for (int row = 0; identity != 0 && row < shown.count(); ++row) {
        if (shown.identity(row) == identity)
            return row;
    }
    return -1;
}

} // namespace

TableViewState::TableViewState(const QTableWidget &table, const ShownConnections &shown)
    : m_selected(selectedIdentities(table, shown))
    , m_current(shown.identity(table.currentRow()))
    , m_currentColumn(table.currentColumn())
    , m_visible(visibleIdentities(table, shown))
    , m_horizontal(table.horizontalScrollBar()->value())
{
}

void TableViewState::restore(QTableWidget &table, const ShownConnections &shown) const
{
    restoreSelection(table, shown);
    // Last, because a view scrolls to a new current cell.
    restoreScrolling(table, shown);
}

void TableViewState::restoreSelection(QTableWidget &table, const ShownConnections &shown) const
{
    // Rows that no store has may be the same in all that is known of them.
    std::unordered_map<std::uint64_t, int> wanted;
    for (const std::uint64_t identity : m_selected)
        ++wanted[identity];
    const QAbstractItemModel &model = *table.model();
    QItemSelection selection;
    for (int row = 0; !wanted.empty() && row < shown.count(); ++row) {
        const auto found = wanted.find(shown.identity(row));
        if (found == wanted.end() || found->second == 0)
            continue;
        --found->second;
        appendRow(selection, model, row);
    }
    table.selectionModel()->setCurrentIndex(model.index(rowOf(m_current, shown), m_currentColumn),
                                            QItemSelectionModel::NoUpdate);
    // At once: to compare thousands of ranges with thousands of others takes seconds.
    table.clearSelection();
    table.selectionModel()->select(selection, QItemSelectionModel::Select);
}

void TableViewState::restoreScrolling(QTableWidget &table, const ShownConnections &shown) const
{
    if (m_visible.empty())
        table.scrollToTop();
    for (const std::uint64_t identity : m_visible) {
        const int row = rowOf(identity, shown);
        if (row < 0 || table.isRowHidden(row))
            continue;
        table.scrollTo(table.model()->index(row, 0), QAbstractItemView::PositionAtTop);
        break;
    }
    table.horizontalScrollBar()->setValue(m_horizontal);
}

} // namespace refdialer
