// SPDX-License-Identifier: MIT
#pragma once

#include "HistoryFilter.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPointer>
#include <QTimer>

class QTableView;

namespace refdialer
{

/// The selection of a table whose hidden rows are never in it, whichever way rows are
/// selected: all of them, or a range that spans over hidden ones. So whatever is done to
/// the selection is done to what the user sees.
///
/// Of a long table it hides some rows in each turn of the event loop, so that the user can type
/// on. Rows that are still to be hidden can be selected no more than those that are.
class VisibleSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// A child of the table, for it to use.
    explicit VisibleSelection(QTableView &table);

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection,
                QItemSelectionModel::SelectionFlags command) override;

    /// Shows the rows that are to be shown, and hides the others, which are neither selected
    /// nor current from now on. What it was doing before is of no account. The filter is asked
    /// until the work is done.
    void showOnly(RowFilter isShown);
    void showAll();
    /// Whether there are rows to hide or to show still.
    bool isAtWork() const { return m_next < m_end; }
    /// Returns when there are none. So does every change of the table's rows.
    void finish();
    /// Rows that are still to be hidden included.
    bool hidesRows() const;

signals:
    /// The last rows have been hidden and shown in a later turn.
    void finished();

private:
    bool isToBeSeen(int row) const;
    void takeTurn();
    void hideSome(int mostRows);
    QItemSelection visiblePartOf(const QItemSelection &selection) const;

    QTableView &m_table;
    /// Knows which rows are hidden; null when the table has ended before its selection.
    const QPointer<QHeaderView> m_rows;
    RowFilter m_isShown; ///< how the rows are to be when the work is done
    int m_next = 0;      ///< the first one that may not be so yet
    int m_end = 0;       ///< behind the last one
    QTimer m_timer;
};

} // namespace refdialer
