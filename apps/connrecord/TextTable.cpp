// SPDX-License-Identifier: MIT
#include "TextTable.h"

#include "formats/Utf8Text.h"

#include <QVector>

#include <wchar.h>

#include <algorithm>

namespace connrecord
{

namespace
{

constexpr std::string_view columnGap = "  ";

/// Terminal cells that the text takes.
std::size_t widthOf(std::string_view text)
{
    if (formats::isPlainAscii(text))
        return text.size();
    std::size_t width = 0;
    for (const uint character : formats::fromUtf8(text).toUcs4()) {
        // What the locale does not know still takes a place.
        const int cells = wcwidth(static_cast<wchar_t>(character));
        width += cells < 0 ? 1 : static_cast<std::size_t>(cells);
    }
    return width;
}

void removeSpacesBehind(std::string &text, std::size_t start)
{
    while (text.size() > start && text.back() == ' ')
        text.pop_back();
}

} // namespace

TextTable::TextTable(std::vector<Column> columns)
    : m_columns(std::move(columns))
    , m_widths(m_columns.size(), 0)
{
    for (const Column &column : m_columns)
        addCell(column.header);
}

void TextTable::addCell(std::string_view text)
{
    std::size_t &widest = m_widths[m_cells.size() % m_columns.size()];
    m_texts += text;
    m_cells.push_back({m_texts.size(), widthOf(text)});
    widest = std::max(widest, m_cells.back().width);
}

void TextTable::addRow(const std::vector<QString> &cells)
{
    for (const QString &cell : cells)
        addCell(cell.toStdString());
}

void TextTable::takeLines(std::string &lines)
{
    std::string_view texts = m_texts;
    std::size_t taken = 0;
    for (auto cell = m_cells.begin(); cell != m_cells.end();) {
        const std::size_t start = lines.size();
        for (std::size_t column = 0; column < m_columns.size(); ++column, ++cell) {
            if (column > 0)
                lines += columnGap;
            const std::size_t padding = m_widths[column] - cell->width;
            const bool isRight = m_columns[column].alignment == Alignment::Right;
            lines.append(isRight ? padding : 0, ' ');
            lines += texts.substr(taken, cell->end - taken);
            lines.append(isRight ? 0 : padding, ' ');
            taken = cell->end;
        }
        removeSpacesBehind(lines, start);
        lines += '\n';
    }
    m_texts.clear();
    m_cells.clear();
}

QByteArray TextTable::text()
{
    std::string lines;
    takeLines(lines);
    return QByteArray::fromStdString(lines);
}

} // namespace connrecord
