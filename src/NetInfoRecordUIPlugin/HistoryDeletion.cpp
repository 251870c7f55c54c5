// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#include "CommonUtils.h"
#include "HistoryCells.h"
#include "Log.h"
#include "MenuKeeper.h"
#include "NetInfoRecordLogic.h"

#include <QItemSelection>
#include <QTableWidget>

#include <algorithm>
#include <functional>

using HistoryCells::columnCount;

namespace
{

constexpr int confirmed = 1024;

} // namespace

/// Asks the user; the buttons are identifiers that the host translates, title
/// and text are translated here.
bool ConnectionHistoryDlg::isConfirmed(const QString &textId)
{
    const QString title = tr(QLatin1String("IDS_PROMPT_CAPTION"));
    const QString text = tr(textId);
    const MenuKeeper keeper(m_pConnectionTblTreeWidget);
    return CommonUtils::ShowMessage(QMessageBox::Question, m_pContainerWidget, title, text,
                                    QLatin1String("IDS_OK"), QLatin1String("IDS_CANCEL"),
                                    QLatin1String(""), true, Qt::WindowCloseButtonHint, nullptr,
                                    QString(), true) == confirmed;
}

void ConnectionHistoryDlg::onDelete()
{
    const Log::Operation log(Log::entered, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    if (log.isAnyMissing({m_pConnectionTblTreeWidget, m_pRecordLogic}, __LINE__))
        return;
    const Selection selection = selectedCells();
    if (selection.count / columnCount == 0)
        return;

    const QPointer<ConnectionHistoryDlg> self = this;
    const int changes = m_nTableChanges;
    const bool isWanted = isConfirmed(QLatin1String("IDS_STR_DELETE"));
    // While the question was open, the host may have ended the window or filled
    // the table with other records than the user was asked about.
    const bool isStillSame = self && m_pConnectionTblTreeWidget && changes == m_nTableChanges;
    if (isWanted && isStillSame)
        removeCells(selection.firstCells);
    log.exit(__LINE__);
}

ConnectionHistoryDlg::Selection ConnectionHistoryDlg::selectedCells() const
{
    Selection selection;
    const QItemSelection ranges = m_pConnectionTblTreeWidget->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selection.addRow(*m_pConnectionTblTreeWidget, row, range);
    }
    return selection;
}

void ConnectionHistoryDlg::Selection::addRow(const QTableWidget &table, int row,
                                             const QItemSelectionRange &range)
{
    const Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (int column = range.left(); column <= range.right(); ++column) {
        const QTableWidgetItem *cell = table.item(row, column);
        // Neither a place without a cell nor what is hidden has been chosen by the user.
        if (!cell || (cell->flags() & selectable) != selectable ||
            HistoryCells::isHidden(table, row, column))
            continue;
        ++count;
        if (column == 0)
            firstCells.append(cell);
    }
}

/// Removes the rows of these cells and their records.
void ConnectionHistoryDlg::removeCells(Cells cells)
{
    std::sort(cells.begin(), cells.end(), std::less<>());
    QVector<int> rows;
    QVector<int> recordIds;
    // Of the cells only those are looked into that the table still has: a host may
    // have removed some while the question was open.
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        const QTableWidgetItem *cell = m_pConnectionTblTreeWidget->item(row, 0);
        if (!std::binary_search(cells.cbegin(), cells.cend(), cell, std::less<>()))
            continue;
        if (const ConnectionRecord *record = HistoryCells::linkedRecord(*cell)) {
            rows.append(row);
            recordIds.append(record->m_nRecordId);
        }
    }
    std::sort(recordIds.begin(), recordIds.end());
    removeRows(rows);
    removeRecords(recordIds);
}

void ConnectionHistoryDlg::removeRows(const QVector<int> &ascendingRows)
{
    if (ascendingRows.isEmpty())
        return;
    ++m_nTableChanges;
    // Thousands of selected ranges would each be mended at every removal.
    if (selectedArea() == static_cast<qint64>(ascendingRows.size()) * columnCount)
        m_pConnectionTblTreeWidget->clearSelection();
    // The highest row goes first, so that the lower ones keep their place.
    for (auto row = ascendingRows.crbegin(); row != ascendingRows.crend(); ++row)
        m_pConnectionTblTreeWidget->removeRow(*row);
}

/// How many cells are selected, those that the host has hidden too.
qint64 ConnectionHistoryDlg::selectedArea() const
{
    qint64 area = 0;
    const QItemSelection ranges = m_pConnectionTblTreeWidget->selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges)
        area += static_cast<qint64>(range.height()) * range.width();
    return area;
}

void ConnectionHistoryDlg::removeRecords(const QVector<int> &sortedIds)
{
    Records removed;
    // The highest identifier goes first, so that the SDK's lower ones keep theirs.
    for (auto id = sortedIds.rbegin(); id != sortedIds.rend(); ++id) {
        // The record goes from the window even where the SDK keeps it.
        m_pRecordLogic->DeleteRecord(*id);
        removed.append(m_pRecordLogic->takeRecord(*id));
    }
    freeRecords(removed);
}

/// Frees these and no longer counts them among this window's own.
void ConnectionHistoryDlg::freeRecords(Records records)
{
    keepEachOnce(records);
    const auto isFreed = [&records](const ConnectionRecord *record) {
        return std::binary_search(records.cbegin(), records.cend(), record, std::less<>());
    };
    m_ownRecords.erase(std::remove_if(m_ownRecords.begin(), m_ownRecords.end(), isFreed),
                       m_ownRecords.end());
    qDeleteAll(records);
}

void ConnectionHistoryDlg::onDeleteAll()
{
    const Log::Operation log(Log::entered, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    if (log.isAnyMissing({m_pRecordLogic, m_pConnectionTblTreeWidget}, __LINE__))
        return;
    const QPointer<ConnectionHistoryDlg> self = this;
    if (isConfirmed(QLatin1String("IDS_STR_CLEARALL")) && self) {
        m_pRecordLogic->DeleteAll();
        ReleaseTable();
        m_pRecordLogic->forgetRecords();
        populateTable();
    }
    log.exit(__LINE__);
}
