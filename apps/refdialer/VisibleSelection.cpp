// SPDX-License-Identifier: MIT
#include "VisibleSelection.h"

#include "UpdatesOff.h"

#include <QTableView>

#include <algorithm>
#include <utility>

namespace refdialer
{

namespace
{

/// A few milliseconds' worth.
constexpr int rowsInATurn = 2000;

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
    connect(&m_timer, &QTimer::timeout, this, &VisibleSelection::takeTurn);
    // Each place that is kept here is that of another row afterwards.
    const QAbstractItemModel *const rows = table.model();
    connect(rows, &QAbstractItemModel::rowsAboutToBeInserted, this, &VisibleSelection::finish);
    connect(rows, &QAbstractItemModel::rowsAboutToBeRemoved, this, &VisibleSelection::finish);
    connect(rows, &QAbstractItemModel::modelAboutToBeReset, this, &VisibleSelection::finish);
}

void VisibleSelection::select(const QItemSelection &selection,
                              QItemSelectionModel::SelectionFlags command)
{
    QItemSelectionModel::select(visiblePartOf(selection), command);
}

void VisibleSelection::showOnly(RowFilter isShown)
{
    m_isShown = std::move(isShown);
    m_next = 0;
    m_end = model()->rowCount();
    const QItemSelection kept = runsOf(selection(), m_isShown);
    // At once: to compare thousands of ranges with thousands of others takes seconds.
    clearSelection();
    select(kept, Select);
    if (currentIndex().isValid() && !m_isShown(currentIndex().row()))
        clearCurrentIndex();
    hideSome(rowsInATurn);
    if (isAtWork())
        m_timer.start(0);
    else
        m_timer.stop();
}

void VisibleSelection::showAll()
{
    if (hidesRows())
        showOnly([](int) { return true; });
}

void VisibleSelection::finish()
{
    m_timer.stop();
    if (m_rows && isAtWork())
        hideSome(m_end);
}

bool VisibleSelection::hidesRows() const
{
    return isAtWork() || (m_rows && m_rows->hiddenSectionCount() > 0);
}

bool VisibleSelection::isToBeSeen(int row) const
{
    return !m_rows->isSectionHidden(row) && (!isAtWork() || m_isShown(row));
}

void VisibleSelection::takeTurn()
{
    hideSome(rowsInATurn);
    if (isAtWork())
        return;
    m_timer.stop();
    emit finished();
}

void VisibleSelection::hideSome(int mostRows)
{
    // A header that draws itself looks for the place of each row that it hides, which
    // takes a walk over all of them.
    const UpdatesOff off(*m_rows);
    const int end = m_next + std::min(mostRows, m_end - m_next);
    for (; m_next < end; ++m_next) {
        const bool isHidden = !m_isShown(m_next);
        if (m_table.isRowHidden(m_next) != isHidden)
            m_table.setRowHidden(m_next, isHidden);
    }
    m_table.doItemsLayout();
}

QItemSelection VisibleSelection::visiblePartOf(const QItemSelection &selection) const
{
    if (!m_rows || !hidesRows())
        return selection;
    return runsOf(selection, [this](int row) { return isToBeSeen(row); });
}

} // namespace refdialer
