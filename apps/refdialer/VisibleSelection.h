// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPointer>

#include <vector>

class QTableView;

namespace refdialer
{

/// The selection of a table whose hidden rows are never in it, whichever way rows are
/// selected: all of them, or a range that spans over hidden ones. So whatever is done to
/// the selection is done to what the user sees.
class VisibleSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// A child of the table, for it to use.
    explicit VisibleSelection(QTableView &table);

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection,
                QItemSelectionModel::SelectionFlags command) override;

    /// Shows the rows that are to be shown, and hides the others, which are then neither
    /// selected nor current.
    void showOnly(const std::vector<bool> &isShown);
    void showAll();

private:
    void hideOthers(const std::vector<bool> &isShown);
    QItemSelection visiblePartOf(const QItemSelection &selection) const;

    QTableView &m_table;
    /// Knows which rows are hidden; null when the table has ended before its selection.
    const QPointer<QHeaderView> m_rows;
};

} // namespace refdialer
