// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionRecord.h"

#include <QHash>
#include <QTableWidget>
#include <QVector>

/// The limit: the cheapest way to six cells of text in each row of a QTableWidget. The
/// texts are there already, each cell begins as a copy of a common one, and the views
/// are told once.
class LimitTable
{
public:
    explicit LimitTable(const QHash<int, ConnectionRecord *> &records);

    void fill();
    void clear() { m_table.setRowCount(0); }

private:
    QTableWidget m_table;
    QTableWidgetItem m_commonCell;
    QVector<QVariant> m_texts; // row by row
};
