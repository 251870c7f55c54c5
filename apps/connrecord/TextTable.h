// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace connrecord
{

/// A plain table for a terminal, with aligned columns and a header, in UTF-8.
class TextTable
{
public:
    enum class Alignment { Left, Right };
    struct Column {
        std::string_view header; ///< is not copied
        Alignment alignment;
    };

    explicit TextTable(std::vector<Column> columns);

    /// The next one of a row, or the first one of the next row, on one line.
    void addCell(std::string_view text);
    /// As many cells as there are columns.
    void addRow(const std::vector<QString> &cells);

    /// Puts the rows since the last call behind `lines`, with the header the first time.
    /// Each column is as wide as its widest cell so far.
    void takeLines(std::string &lines);
    /// All rows.
    QByteArray text();

private:
    struct Cell {
        std::size_t end; ///< in the texts
        std::size_t width;
    };

    std::vector<Column> m_columns;
    std::vector<std::size_t> m_widths;
    std::string m_texts;
    std::vector<Cell> m_cells;
};

} // namespace connrecord
