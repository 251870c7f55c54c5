// SPDX-License-Identifier: MIT
#include "HistoryRow.h"

#include <QStringList>
#include <QTableWidget>

namespace refdialer
{

namespace
{

/// "25:01:01", whose hours may have any number of digits.
qint64 secondsIn(const QString &text)
{
    qint64 seconds = 0;
    for (const QString &part : text.split(QLatin1Char(':')))
        seconds = seconds * 60 + part.toLongLong();
    return seconds;
}

/// "1.50 MB", always with a full stop.
double bytesIn(const QString &text)
{
    double factor = 1;
    for (const char *const unit : {" KB", " MB", " GB"}) {
        factor *= 1024;
        if (text.endsWith(QLatin1String(unit)))
            return text.chopped(3).toDouble() * factor;
    }
    return 0;
}

} // namespace

HistoryRow historyRow(const QTableWidget &table, int row)
{
    const auto cell = [&table, row](HistoryColumn column) {
        const QTableWidgetItem *const item = table.item(row, int(column));
        return item ? item->data(Qt::DisplayRole) : QVariant();
    };
    return {cell(HistoryColumn::Profile).toString(),
            cell(HistoryColumn::Start).toDateTime(),
            cell(HistoryColumn::End).toDateTime(),
            secondsIn(cell(HistoryColumn::ConnectedTime).toString()),
            bytesIn(cell(HistoryColumn::Uploaded).toString()),
            bytesIn(cell(HistoryColumn::Downloaded).toString())};
}

} // namespace refdialer
