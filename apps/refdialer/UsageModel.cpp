// SPDX-License-Identifier: MIT
#include "UsageModel.h"

#include "UsageText.h"
#include "usage/SizeText.h"

#include <algorithm>

namespace refdialer
{

namespace
{

constexpr int totalColumn = 1 + usage::usagePartCount;

bool isSameTime(const usage::UsageBar &bar, const usage::UsageBar &other)
{
    return bar.first == other.first;
}

/// Broken at the space that is nearest to the middle, so that all columns have room.
QString inTwoLines(QString text)
{
    const int middle = int(text.size()) / 2;
    const int before = int(text.lastIndexOf(QLatin1Char(' '), middle));
    const int after = int(text.indexOf(QLatin1Char(' '), middle));
    const bool isBeforeNearer = after < 0 || (before >= 0 && middle - before < after - middle);
    const int nearest = isBeforeNearer ? before : after;
    if (nearest >= 0)
        text[nearest] = QLatin1Char('\n');
    return text;
}

} // namespace

void UsageModel::setBars(const std::vector<usage::UsageBar> &bars, usage::BarUnit unit)
{
    if (unit == m_unit &&
        std::equal(bars.begin(), bars.end(), m_bars.begin(), m_bars.end(), isSameTime)) {
        m_bars = bars;
        if (!bars.empty())
            emit dataChanged(index(0, 1), index(rowCount() - 1, totalColumn));
        return;
    }
    beginResetModel();
    m_bars = bars;
    m_unit = unit;
    endResetModel();
}

void UsageModel::setLocale(const QLocale &locale)
{
    m_locale = locale;
    emit headerDataChanged(Qt::Horizontal, 0, totalColumn);
    if (!m_bars.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

int UsageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_bars.size());
}

int UsageModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : totalColumn + 1;
}

QVariant UsageModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (index.column() == 0 ? Qt::AlignLeading : Qt::AlignTrailing));
    if (role != Qt::DisplayRole)
        return {};
    if (index.column() == 0)
        return UsageText::barName(m_bars[std::size_t(index.row())], m_unit, m_locale);
    return usage::sizeText(bytes(index.row(), index.column()));
}

QVariant UsageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return inTwoLines(UsageText::columnNames(m_unit).value(section));
}

QString UsageModel::text() const
{
    const QLatin1Char tabulator('\t');
    const QLatin1String format(m_unit == usage::BarUnit::Day ? "yyyy-MM-dd" : "yyyy-MM");
    QStringList lines{UsageText::columnNames(m_unit).join(tabulator)};
    for (int row = 0; row < rowCount(); ++row) {
        QStringList values{m_bars[std::size_t(row)].first.toString(format)};
        for (int column = 1; column <= totalColumn; ++column)
            values.append(QString::number(bytes(row, column)));
        lines.append(values.join(tabulator));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

std::int64_t UsageModel::bytes(int row, int column) const
{
    const usage::UsageBar &bar = m_bars[std::size_t(row)];
    return column == totalColumn ? bar.total() : bar.bytes[std::size_t(column - 1)];
}

} // namespace refdialer
