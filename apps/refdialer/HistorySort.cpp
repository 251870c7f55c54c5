// SPDX-License-Identifier: MIT
#include "HistorySort.h"

#include "RowMove.h"
#include "ShownConnections.h"

#include <QCollator>
#include <QHash>
#include <QTableWidget>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>
#include <vector>

namespace refdialer
{

namespace
{

using Rows = std::vector<ShownConnection>;
using Order = std::vector<int>;
/// A number for each row, which rises as what it is sorted by does.
using Keys = std::vector<std::int64_t>;

std::int64_t amount(const ShownConnection &connection, HistoryColumn column)
{
    switch (column) {
    case HistoryColumn::End:
        return connection.endUtc;
    case HistoryColumn::ConnectedTime:
        return connection.values.connectedSeconds;
    case HistoryColumn::Uploaded:
        return connection.values.uploadedBytes;
    case HistoryColumn::Downloaded:
        return connection.values.downloadedBytes;
    default:
        return connection.startUtc;
    }
}

Keys amounts(const Rows &rows, HistoryColumn column)
{
    Keys keys;
    keys.reserve(rows.size());
    for (const ShownConnection &row : rows)
        keys.push_back(amount(row, column));
    return keys;
}

QString profileIn(const QTableWidget &table, int row)
{
    const QTableWidgetItem *const cell = table.item(row, int(HistoryColumn::Profile));
    return cell ? cell->data(Qt::DisplayRole).toString() : QString();
}

/// The places of the names in their order; those that are equal in it share one.
QHash<QString, std::int64_t> placesOf(const QStringList &names, const QLocale &locale)
{
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(), [&collator](const QString &a, const QString &b) {
        return collator.compare(a, b) < 0;
    });
    QHash<QString, std::int64_t> places;
    std::int64_t place = 0;
    for (int i = 0; i < sorted.size(); ++i) {
        if (i > 0 && collator.compare(sorted[i - 1], sorted[i]) < 0)
            ++place;
        places.insert(sorted[i], place);
    }
    return places;
}

/// Compares each name once, however many rows show it.
Keys profilePlaces(const QTableWidget &table)
{
    QHash<QString, std::int64_t> known;
    for (int row = 0; row < table.rowCount(); ++row)
        known.insert(profileIn(table, row), 0);
    known = placesOf(known.keys(), table.locale());
    Keys keys;
    keys.reserve(std::size_t(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row)
        keys.push_back(known.value(profileIn(table, row)));
    return keys;
}

/// The places of the rows in their new order.
Order orderOf(const Rows &rows, const Keys &keys, Qt::SortOrder direction)
{
    Order order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        if (keys[a] != keys[b])
            return (direction == Qt::AscendingOrder) == (keys[a] < keys[b]);
        // The plug-in's own order is another one each time; so that rows which are equal
        // otherwise stay where they are, the one that was stored last comes first.
        return std::tie(rows[b].startUtc, rows[b].key, a) <
               std::tie(rows[a].startUtc, rows[a].key, b);
    });
    return order;
}

} // namespace

void sortRows(QTableWidget &table, const HistoryOrder &by, ShownConnections &shown)
{
    const Keys keys = by.column == HistoryColumn::Profile ? profilePlaces(table)
                                                          : amounts(shown.rows(), by.column);
    const Order order = orderOf(shown.rows(), keys, by.direction);
    if (std::is_sorted(order.begin(), order.end()))
        return;
    moveRows(table, order);
    shown.rearrange(order);
}

} // namespace refdialer
