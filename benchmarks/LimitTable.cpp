// SPDX-License-Identifier: MIT
#include "LimitTable.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace
{

constexpr int columnCount = 6;

} // namespace

LimitTable::LimitTable(const QHash<int, ConnectionRecord *> &records)
{
    m_table.setColumnCount(columnCount);
    m_table.verticalHeader()->setMinimumSectionSize(14);
    m_table.verticalHeader()->setDefaultSectionSize(14);
    m_commonCell.setData(Qt::DisplayRole, QVariant());
    m_commonCell.setData(Qt::TextAlignmentRole, int(Qt::AlignLeft));
    m_commonCell.setFlags(m_commonCell.flags() & ~Qt::ItemIsEditable);
    for (const ConnectionRecord *record : records)
        m_texts << record->m_strProfileName << record->m_strStartTime << record->m_strEndTime
                << record->m_strConnectedTime << record->m_strUploaded << record->m_strDownloaded;
}

void LimitTable::fill()
{
    const int rows = static_cast<int>(m_texts.size()) / columnCount;
    m_table.setRowCount(rows);
    QAbstractItemModel &model = *m_table.model();
    QSignalBlocker blocker(model);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            auto *cell = new QTableWidgetItem(m_commonCell);
            cell->setData(Qt::DisplayRole, m_texts.at(row * columnCount + column));
            m_table.setItem(row, column, cell);
        }
    }
    blocker.unblock();
    Q_EMIT model.dataChanged(model.index(0, 0), model.index(rows - 1, columnCount - 1));
}
