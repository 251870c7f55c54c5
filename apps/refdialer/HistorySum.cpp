// SPDX-License-Identifier: MIT
#include "HistorySum.h"

#include "usage/CalendarTime.h"
#include "usage/SaturatingMath.h"
#include "usage/SizeText.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QTableView>

namespace refdialer
{

namespace
{

void add(const ConnectionValues &values, HistorySum &sum)
{
    using usage::saturatingSum;
    ConnectionValues &total = sum.values;
    total.connectedSeconds = saturatingSum(total.connectedSeconds, values.connectedSeconds);
    total.uploadedBytes = saturatingSum(total.uploadedBytes, values.uploadedBytes);
    total.downloadedBytes = saturatingSum(total.downloadedBytes, values.downloadedBytes);
    ++sum.count;
}

void addShownRows(int first, int last, const QTableView &table, const ShownConnections &shown,
                  HistorySum &sum)
{
    for (int row = first; row <= last; ++row) {
        if (!table.isRowHidden(row))
            add(shown.values(row), sum);
    }
}

} // namespace

HistorySum sumOf(const QTableView &table, const ShownConnections &shown)
{
    HistorySum sum;
    sum.isOfSelection = table.selectionModel()->hasSelection();
    if (!sum.isOfSelection)
        addShownRows(0, shown.count() - 1, table, shown, sum);
    for (const QItemSelectionRange &range : table.selectionModel()->selection())
        addShownRows(range.top(), range.bottom(), table, shown, sum);
    return sum;
}

QString sumText(const HistorySum &sum)
{
    const QString text =
        sum.isOfSelection
            ? QCoreApplication::translate("refdialer::HistorySum",
                                          "Selected: %1 · sent: %2 · received: %3 · connected: %4")
            : QCoreApplication::translate(
                  "refdialer::HistorySum",
                  "Connections: %1 · sent: %2 · received: %3 · connected: %4");
    return text.arg(QString::number(sum.count), usage::sizeText(sum.values.uploadedBytes),
                    usage::sizeText(sum.values.downloadedBytes),
                    usage::durationText(sum.values.connectedSeconds));
}

} // namespace refdialer
