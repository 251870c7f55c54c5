// SPDX-License-Identifier: MIT
#include "HistoryCells.h"

#include "ConnectionRecord.h"
#include "TimeText.h"

#include <QMetaMethod>
#include <QTableWidget>

namespace
{

/// Asks a table what Qt lets only a class derived from it ask.
class TableQuestions : public QTableWidget
{
public:
    static bool hasCellListeners(const QTableWidget &table)
    {
        const auto isConnected = &TableQuestions::isSignalConnected;
        return (table.*isConnected)(QMetaMethod::fromSignal(&QTableWidget::cellChanged)) ||
               (table.*isConnected)(QMetaMethod::fromSignal(&QTableWidget::itemChanged));
    }
    static bool isHidden(const QTableWidget &table, int row, int column)
    {
        const auto isIndexHidden = &TableQuestions::isIndexHidden;
        return (table.*isIndexHidden)(table.model()->index(row, column));
    }
};

} // namespace

const HistoryCells::Column HistoryCells::columns[columnCount] = {
    {"IDS_LIST_APN", 110},           {"IDS_LIST_STARTTIME", 135}, {"IDS_LIST_ENDTIME", 135},
    {"IDS_LIST_CONNECTEDTIME", 110}, {"IDS_LIST_UPLOADED", 110},  {"IDS_LIST_DOWNLOADED", 110},
};

QTableWidgetItem HistoryCells::common()
{
    QTableWidgetItem cell;
    cell.setData(Qt::TextAlignmentRole, int(Qt::AlignLeft | Qt::AlignBottom));
    cell.setData(Qt::UserRole, 0);
    cell.setData(Qt::DisplayRole, QVariant()); // keeps a place for the cell's own
    // Replaces the alignment above; both assignments and their order are meant.
    cell.setData(Qt::TextAlignmentRole, int(Qt::AlignLeft));
    cell.setFlags(cell.flags() & ~Qt::ItemIsEditable);
    return cell;
}

QVariant HistoryCells::data(const ConnectionRecord &record, int column)
{
    switch (column) {
    case 0:
        return record.m_strProfileName;
    case 1:
        return TimeText::parsed(record.m_strStartTime);
    case 2:
        return TimeText::parsed(record.m_strEndTime);
    case 3:
        return record.m_strConnectedTime;
    case 4:
        return record.m_strUploaded;
    default:
        return record.m_strDownloaded;
    }
}

QVariant HistoryCells::link(const ConnectionRecord *record)
{
    return QVariant(static_cast<qulonglong>(reinterpret_cast<quintptr>(record)));
}

ConnectionRecord *HistoryCells::linkedRecord(const QTableWidgetItem &item)
{
    return reinterpret_cast<ConnectionRecord *>(
        static_cast<quintptr>(item.data(Qt::UserRole).toULongLong()));
}

bool HistoryCells::haveListeners(const QTableWidget &table)
{
    return TableQuestions::hasCellListeners(table);
}

bool HistoryCells::isHidden(const QTableWidget &table, int row, int column)
{
    return TableQuestions::isHidden(table, row, column);
}
