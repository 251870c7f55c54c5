// SPDX-License-Identifier: MIT
#include "BareTable.h"

#include <QApplication>
#include <QDateTime>
#include <QHeaderView>

BareTable::BareTable()
{
    m_table.setColumnCount(6);
    m_table.verticalHeader()->setMinimumSectionSize(14);
}

void BareTable::fill(const QHash<int, ConnectionRecord *> &records)
{
    m_table.setRowCount(static_cast<int>(records.size()));
    int row = 0;
    for (const ConnectionRecord *record : records)
        fillRow(row++, *record);
}

void BareTable::fillRow(int row, const ConnectionRecord &record)
{
    const QString format = QStringLiteral("yyyyMMddhhmmss");
    const QVariant cells[] = {record.m_strProfileName,
                              QDateTime::fromString(record.m_strStartTime, format),
                              QDateTime::fromString(record.m_strEndTime, format),
                              record.m_strConnectedTime,
                              record.m_strUploaded,
                              record.m_strDownloaded};
    m_table.setRowHeight(row, 14);
    int column = 0;
    for (const QVariant &cell : cells) {
        auto *item = new QTableWidgetItem;
        item->setData(Qt::TextAlignmentRole, int(Qt::AlignLeft | Qt::AlignBottom));
        item->setData(Qt::UserRole, 0);
        item->setData(Qt::DisplayRole, cell);
        if (column == 0)
            item->setData(Qt::UserRole,
                          QVariant::fromValue<qulonglong>(reinterpret_cast<quintptr>(&record)));
        item->setData(Qt::TextAlignmentRole, int(Qt::AlignLeft));
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        m_table.setItem(row, column++, item);
    }
}

void BareTable::show()
{
    m_table.resize(760, 400);
    m_table.show();
    QApplication::processEvents();
}

void BareTable::removeRows(const QVector<int> &rows)
{
    for (auto row = rows.crbegin(); row != rows.crend(); ++row)
        m_table.removeRow(*row);
}
