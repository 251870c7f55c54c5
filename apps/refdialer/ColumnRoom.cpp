// SPDX-License-Identifier: MIT
#include "ColumnRoom.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>

namespace refdialer
{

ColumnRoom::ColumnRoom(QTableWidget &table)
    : QObject(&table)
    , m_table(table)
{
    // All rows of a long history would take their time, and 0 means all while it is hidden.
    constexpr int rowsToMeasure = 100;
    m_table.horizontalHeader()->setResizeContentsPrecision(rowsToMeasure);
    // Whoever sets the heads sets the widths as well, after that.
    connect(m_table.model(), &QAbstractItemModel::headerDataChanged, this,
            [this] { QTimer::singleShot(0, this, &ColumnRoom::beginAnew); });
}

void ColumnRoom::beginAnew()
{
    m_needed.clear();
    widen();
}

void ColumnRoom::widen()
{
    const QAbstractItemView &view = m_table;
    const QHeaderView &heads = *m_table.horizontalHeader();
    m_needed.resize(std::size_t(m_table.columnCount()));
    for (int column = 0; column < m_table.columnCount(); ++column) {
        const int needed = std::max(view.sizeHintForColumn(column), heads.sectionSizeHint(column));
        int &former = m_needed[std::size_t(column)];
        if (needed > former && needed > m_table.columnWidth(column))
            m_table.setColumnWidth(column, needed);
        former = std::max(former, needed);
    }
}

} // namespace refdialer
