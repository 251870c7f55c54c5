// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#include "FetchedAhead.h"
#include "HistoryCells.h"
#include "LocalZone.h"
#include "Log.h"
#include "NetInfoRecordLogic.h"

#include <QTableWidget>

#include <algorithm>
#include <functional>
#include <new>
#include <optional>
#include <utility>

using HistoryCells::columnCount;

namespace
{

constexpr Log::Form releaseForm{
    "Start File: %s %s: %d: %s:", "End File: %s %s: %d: %s:", Log::Details::PlaceThenTime};

/// While it lives, a table's views hear nothing; then, of one change of it all.
/// Each cell on its own costs more to announce than to put there, so that is done
/// only where somebody listens to the table's own signals about single cells.
class ChangedAsOne
{
public:
    explicit ChangedAsOne(QTableWidget &table)
        : m_model(*table.model())
    {
        if (!HistoryCells::haveListeners(table))
            m_blocker.emplace(m_model);
    }
    ~ChangedAsOne()
    {
        if (!m_blocker)
            return;
        m_blocker->unblock();
        const QModelIndex last = m_model.index(m_model.rowCount() - 1, m_model.columnCount() - 1);
        if (last.isValid())
            Q_EMIT m_model.dataChanged(m_model.index(0, 0), last);
    }
    Q_DISABLE_COPY(ChangedAsOne)

private:
    QAbstractItemModel &m_model;
    std::optional<QSignalBlocker> m_blocker;
};

} // namespace

/// A host may call Init again: the rows that stood so far make way, and with
/// them the records that only they lead to.
void ConnectionHistoryDlg::discardRows()
{
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        if (const QTableWidgetItem *item = m_pConnectionTblTreeWidget->item(row, 0))
            m_ownRecords.append(HistoryCells::linkedRecord(*item));
    }
    freeOwnRecords();
    m_pConnectionTblTreeWidget->setRowCount(0);
}

void ConnectionHistoryDlg::fetchRecords()
{
    if (!m_pRecordLogic)
        return;
    m_pRecordLogic->forgetRecords();
    m_pRecordLogic->GetAllConnectedRecords();
    if (m_pConnectionTblTreeWidget)
        return;
    // A host has destroyed the table: no row will lead to these records.
    for (ConnectionRecord *record : std::as_const(m_pRecordLogic->m_records))
        m_ownRecords.append(record);
}

void ConnectionHistoryDlg::reload()
{
    ReleaseTable();
    fetchRecords();
    populateTable();
}

void ConnectionHistoryDlg::populateTable()
{
    const Log::Operation log(Log::startFileColon, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    if (log.isAnyMissing({m_pRecordLogic, m_pConnectionTblTreeWidget}, __LINE__))
        return;
    ++m_nTableChanges;
    const QHash<int, ConnectionRecord *> records = m_pRecordLogic->m_records;
    m_pConnectionTblTreeWidget->setRowCount(static_cast<int>(records.size()));
    m_pConnectionTblTreeWidget->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    const LocalZone::Hold zone;
    const ChangedAsOne change(*m_pConnectionTblTreeWidget);
    // The rows follow the map's own order; sorting is deliberately left out.
    int row = 0;
    FetchedAhead ahead(records);
    for (ConnectionRecord *record : records) {
        ahead.advance();
        if (log.isMissing(record, __LINE__))
            return;
        PopulateTableRowOfConnectionRecord(record, row);
        ++row;
    }
    log.exit(__LINE__);
}

void ConnectionHistoryDlg::PopulateTableRowOfConnectionRecord(ConnectionRecord *record, int row)
{
    const Log::Operation log(Log::startFileColon, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    if (log.isAnyMissing({m_pConnectionTblTreeWidget, record}, __LINE__))
        return;
    m_ownRecords.append(record);
    m_pConnectionTblTreeWidget->setRowHeight(row, HistoryCells::rowHeight);
    for (int column = 0; column < columnCount; ++column) {
        auto *item = new (std::nothrow) QTableWidgetItem(m_commonCell);
        if (log.isMissing(item, __LINE__))
            return;
        item->setData(Qt::DisplayRole, HistoryCells::data(*record, column));
        if (column == 0)
            item->setData(Qt::UserRole, HistoryCells::link(record));
        m_pConnectionTblTreeWidget->setItem(row, column, item);
    }
    log.exit(__LINE__);
}

void ConnectionHistoryDlg::ReleaseTable()
{
    const Log::Operation log(releaseForm, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    const bool isComplete = collectLinkedRecords();
    freeOwnRecords();
    if (isComplete)
        log.exit(__LINE__);
}

/// The records that the rows refer to go with this window's own, up to the first cell
/// that is missing; false if something is.
bool ConnectionHistoryDlg::collectLinkedRecords()
{
    const Log::Place log(Log::connectionHistoryDlg, "ReleaseTable");
    if (log.isAnyMissing({m_pConnectionTblTreeWidget, m_pRecordLogic}, __LINE__))
        return false;
    for (int row = 0; row < m_pConnectionTblTreeWidget->rowCount(); ++row) {
        const QTableWidgetItem *item = m_pConnectionTblTreeWidget->item(row, 0);
        if (log.isMissing(item, __LINE__))
            return false;
        m_ownRecords.append(HistoryCells::linkedRecord(*item));
    }
    return true;
}

/// Not those that somebody else has put into the map and no row has shown.
void ConnectionHistoryDlg::freeOwnRecords()
{
    Records records = std::exchange(m_ownRecords, {});
    keepEachOnce(records);
    qDeleteAll(records);
}

/// In the order of their addresses.
void ConnectionHistoryDlg::keepEachOnce(Records &records)
{
    std::sort(records.begin(), records.end(), std::less<>());
    records.erase(std::unique(records.begin(), records.end()), records.end());
}
