// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionRecord.h"

#include <QHash>
#include <QTableWidget>

/// The table that the plug-in is weighed against: the same cells, put in
/// plainly with Qt's own calls.
class BareTable
{
public:
    BareTable();

    void fill(const QHash<int, ConnectionRecord *> &records);
    void clear() { m_table.setRowCount(0); }
    void show();
    /// Removes these rows, which ascend, one by one from the last on.
    void removeRows(const QVector<int> &rows);

private:
    void fillRow(int row, const ConnectionRecord &record);

    QTableWidget m_table;
};
