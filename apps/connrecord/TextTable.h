// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace connrecord
{

/// A plain table for a terminal, with aligned columns and a header.
class TextTable
{
public:
    enum class Alignment { Left, Right };
    struct Column {
        QString header;
        Alignment alignment;
    };

    explicit TextTable(std::vector<Column> columns);

    /// As many cells as there are columns, each on one line.
    void addRow(std::vector<QString> cells);

    QString text() const;

private:
    QString line(const std::vector<QString> &cells, const std::vector<int> &widths) const;

    std::vector<Column> m_columns;
    std::vector<std::vector<QString>> m_rows;
};

} // namespace connrecord
