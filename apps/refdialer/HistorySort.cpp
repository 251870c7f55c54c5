// SPDX-License-Identifier: MIT
#include "HistorySort.h"

#include "TrueValues.h"
#include "UpdatesOff.h"

#include <QCollator>
#include <QTableWidget>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace refdialer
{

namespace
{

/// Stands in for a cell while the table sorts: Qt's own sort moves whole
/// rows, and what refers to them, by what the cells of one column say.
class RankItem : public QTableWidgetItem
{
public:
    RankItem(int rank, QTableWidgetItem *shown)
        : m_rank(rank)
        , m_shown(shown)
    {
    }

    bool operator<(const QTableWidgetItem &other) const override
    {
        return m_rank < static_cast<const RankItem &>(other).m_rank;
    }

    QTableWidgetItem *shown() const { return m_shown; }

private:
    const int m_rank;
    QTableWidgetItem *const m_shown;
};

using Order = std::vector<int>;

std::int64_t amount(const history::Connection &connection, HistoryColumn column)
{
    switch (column) {
    case HistoryColumn::End:
        return connection.endUtc;
    case HistoryColumn::ConnectedTime:
        return connection.connectedSeconds;
    case HistoryColumn::Uploaded:
        return connection.uploadedBytes;
    case HistoryColumn::Downloaded:
        return connection.downloadedBytes;
    default:
        return connection.startUtc;
    }
}

template <typename Keys>
void sortBy(const Keys &keys, Qt::SortOrder direction, Order &order)
{
    std::stable_sort(order.begin(), order.end(), [&keys, direction](int a, int b) {
        const auto &first = keys[direction == Qt::AscendingOrder ? a : b];
        const auto &second = keys[direction == Qt::AscendingOrder ? b : a];
        return first < second;
    });
}

void sortByAmount(const std::vector<history::Connection> &rows, const HistoryOrder &by,
                  Order &order)
{
    std::vector<std::int64_t> amounts;
    amounts.reserve(rows.size());
    for (const history::Connection &row : rows)
        amounts.push_back(amount(row, by.column));
    sortBy(amounts, by.direction, order);
}

void sortByProfile(const std::vector<history::Connection> &rows, Qt::SortOrder direction,
                   const QLocale &locale, Order &order)
{
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(rows.size());
    for (const history::Connection &row : rows)
        keys.push_back(collator.sortKey(QString::fromStdString(row.profile)));
    sortBy(keys, direction, order);
}

std::vector<history::Connection> connectionsIn(const QTableWidget &table, TrueValues values)
{
    std::vector<history::Connection> rows;
    rows.reserve(std::size_t(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row)
        rows.push_back(values.take(historyRow(table, row)));
    return rows;
}

/// The places of the rows in their new order.
Order orderOf(const std::vector<history::Connection> &rows, const HistoryOrder &by,
              const QLocale &locale)
{
    Order order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    // The plug-in's own order is another one each time; so that rows which are equal
    // otherwise stay where they are, the one that was stored last comes first.
    std::sort(order.begin(), order.end(), [&rows](int a, int b) {
        return std::pair(rows[b].key, a) < std::pair(rows[a].key, b);
    });
    sortByAmount(rows, HistoryOrder(), order);
    if (by.column == HistoryColumn::Profile)
        sortByProfile(rows, by.direction, locale, order);
    else
        sortByAmount(rows, by, order);
    return order;
}

void moveRows(QTableWidget &table, const Order &order)
{
    constexpr int column = int(HistoryColumn::Start);
    const UpdatesOff off(table);
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        QTableWidgetItem *const shown = table.takeItem(order[rank], column);
        table.setItem(order[rank], column, new RankItem(int(rank), shown));
    }
    table.model()->sort(column);
    for (int row = 0; row < table.rowCount(); ++row) {
        const auto *const item = static_cast<const RankItem *>(table.takeItem(row, column));
        table.setItem(row, column, item->shown());
        delete item;
    }
}

} // namespace

std::vector<history::Connection> sortRows(QTableWidget &table, const HistoryOrder &by,
                                          TrueValues values)
{
    std::vector<history::Connection> rows = connectionsIn(table, std::move(values));
    const Order order = orderOf(rows, by, table.locale());
    moveRows(table, order);
    std::vector<history::Connection> sorted;
    sorted.reserve(rows.size());
    for (const int row : order)
        sorted.push_back(std::move(rows[row]));
    return sorted;
}

} // namespace refdialer
