// SPDX-License-Identifier: MIT
#include "TextTable.h"

#include <QVector>

#include <wchar.h>

#include <algorithm>

namespace connrecord
{

namespace
{

constexpr const char *columnGap = "  ";

/// Terminal cells that the text takes.
int widthOf(const QString &text)
{
    int width = 0;
    for (const uint character : text.toUcs4()) {
        // What the locale does not know still takes a place.
        const int cells = wcwidth(static_cast<wchar_t>(character));
        width += cells < 0 ? 1 : cells;
    }
    return width;
}

QString padded(const QString &text, int width, TextTable::Alignment alignment)
{
    const QString padding(std::max(width - widthOf(text), 0), QLatin1Char(' '));
    return alignment == TextTable::Alignment::Left ? text + padding : padding + text;
}

QString withoutTrailingSpaces(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

} // namespace

TextTable::TextTable(std::vector<Column> columns)
    : m_columns(std::move(columns))
{
    std::vector<QString> headers;
    for (const Column &column : m_columns)
        headers.push_back(column.header);
    addRow(std::move(headers));
}

void TextTable::addRow(std::vector<QString> cells)
{
    m_rows.push_back(std::move(cells));
}

QString TextTable::text() const
{
    std::vector<int> widths(m_columns.size(), 0);
    for (const std::vector<QString> &cells : m_rows) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(cells[i]));
    }
    QString text;
    for (const std::vector<QString> &cells : m_rows)
        text += line(cells, widths) + QLatin1Char('\n');
    return text;
}

QString TextTable::line(const std::vector<QString> &cells, const std::vector<int> &widths) const
{
    QString line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0)
            line += QLatin1String(columnGap);
        line += padded(cells[i], widths[i], m_columns[i].alignment);
    }
    return withoutTrailingSpaces(line);
}

} // namespace connrecord
