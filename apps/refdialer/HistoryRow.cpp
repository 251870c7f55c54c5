// SPDX-License-Identifier: MIT
#include "HistoryRow.h"

#include <QTableWidget>

#include <algorithm>
#include <charconv>
#include <optional>

namespace refdialer
{

namespace
{

/// The number that the characters are; none if they are not just that. Qt takes fifty
/// times as long to read one.
template <typename Number>
std::optional<Number> numberIn(QStringView characters)
{
    constexpr int longest = 32;
    char digits[longest];
    if (characters.size() > longest)
        return std::nullopt;
    const auto end = std::transform(characters.begin(), characters.end(), digits,
                                    [](QChar character) { return character.toLatin1(); });
    Number number = 0;
    const auto read = std::from_chars(digits, end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

/// "25:01:01", whose hours may have any number of digits.
qint64 secondsIn(QStringView text)
{
    qint64 seconds = 0;
    while (!text.isEmpty()) {
        const auto *const colon = std::find(text.begin(), text.end(), QLatin1Char(':'));
        const auto length = qsizetype(colon - text.begin());
        seconds = seconds * 60 + numberIn<qint64>(text.left(length)).value_or(0);
        text = text.mid(std::min<qsizetype>(length + 1, text.size()));
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
double bytesIn(QStringView text)
{
    constexpr int unitLength = 3;
    if (text.size() < unitLength)
        return 0;
    const double unit = unitOf(text.right(unitLength));
    return unit * numberIn<double>(text.chopped(unitLength)).value_or(0);
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
