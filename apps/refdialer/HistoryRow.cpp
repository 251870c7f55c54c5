// SPDX-License-Identifier: MIT
#include "HistoryRow.h"

#include <QLocale>
#include <QTableWidget>

#include <charconv>

namespace refdialer
{

namespace
{

/// "25:01:01", whose hours may have any number of digits.
qint64 secondsIn(const QString &text)
{
    qint64 seconds = 0;
    int begin = 0;
    while (begin <= text.size()) {
        const auto colon = text.indexOf(QLatin1Char(':'), begin);
        const auto end = colon < 0 ? text.size() : colon;
        seconds = seconds * 60 + QLocale::c().toLongLong(QStringView(text).mid(begin, end - begin));
        begin = int(end) + 1;
    }
    return seconds;
}

/// How many bytes the last letters of a volume's text stand for; 0 if they are no unit.
double unitOf(QStringView letters)
{
    double factor = 1;
    for (const char *const unit : {" KB", " MB", " GB"}) {
        factor *= 1024;
        if (letters == QLatin1String(unit))
            return factor;
    }
    return 0;
}

/// "1.50 MB", always with a full stop.
double bytesIn(const QString &text)
{
    constexpr int unitLength = 3;
    const double unit = unitOf(QStringView(text).right(unitLength));
    // Qt takes fifty times as long to read a number.
    const QByteArray digits = text.left(text.size() - unitLength).toLatin1();
    double number = 0;
    const auto read = std::from_chars(digits.cbegin(), digits.cend(), number);
    return unit > 0 && read.ec == std::errc() && read.ptr == digits.cend() ? number * unit : 0;
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
