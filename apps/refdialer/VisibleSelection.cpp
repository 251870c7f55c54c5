// SPDX-License-Identifier: MIT
#include "VisibleSelection.h"

#include "UpdatesOff.h"

#include <QTableView>

namespace refdialer
{

namespace
{

/// A range for each run of rows that belong to it.
template <typename Belongs>
void appendRuns(QItemSelection &runs, const QItemSelectionRange &range, const Belongs &belongs)
{
    const QAbstractItemModel *const model = range.model();
    for (int row = range.top(); row <= range.bottom(); ++row) {
        if (!belongs(row))
            continue;
        const int top = row;
        while (row < range.bottom() && belongs(row + 1))
            ++row;
        runs.append({model->index(top, range.left()), model->index(row, range.right())});
    }
}

template <typename Belongs>
QItemSelection runsOf(const QItemSelection &selection, const Belongs &belongs)
{
    QItemSelection runs;
    for (const QItemSelectionRange &range : selection)
        appendRuns(runs, range, belongs);
    return runs;
}

} // namespace

VisibleSelection::VisibleSelection(QTableView &table)
    : QItemSelectionModel(table.model(), &table)
    , m_table(table)
    , m_rows(table.verticalHeader())
{
}

void VisibleSelection::select(const QItemSelection &selection,
                              QItemSelectionModel::SelectionFlags command)
{
    QItemSelectionModel::select(visiblePartOf(selection), command);
}

void VisibleSelection::showOnly(const std::vector<bool> &isShown)
{
    const auto staysShown = [&isShown](int row) { return isShown[std::size_t(row)]; };
    const QItemSelection kept = runsOf(selection(), staysShown);
    // At once: to compare thousands of ranges with thousands of others takes seconds.
    clearSelection();
    hideOthers(isShown);
    select(kept, Select);
    if (currentIndex().isValid() && !staysShown(currentIndex().row()))
        clearCurrentIndex();
}

void VisibleSelection::hideOthers(const std::vector<bool> &isShown)
{
    // A header that draws itself looks for the place of each row that it hides, which
    // takes a walk over all of them.
    const UpdatesOff off(*m_rows);
    for (int row = 0; row < int(isShown.size()); ++row) {
        if (m_table.isRowHidden(row) == isShown[std::size_t(row)])
            m_table.setRowHidden(row, !isShown[std::size_t(row)]);
    }
    m_table.doItemsLayout();
}

void VisibleSelection::showAll()
{
    if (m_rows->hiddenSectionCount() > 0)
        showOnly(std::vector<bool>(std::size_t(model()->rowCount()), true));
}

QItemSelection VisibleSelection::visiblePartOf(const QItemSelection &selection) const
{
    if (!m_rows || m_rows->hiddenSectionCount() == 0)
        return selection;
    return runsOf(selection, [this](int row) { return !m_rows->isSectionHidden(row); });
}

} // namespace refdialer
