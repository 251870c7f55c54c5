// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class QTableWidget;

namespace refdialer
{

/// Gives the columns of a table, whose widths are fixed in pixels, the room that a larger font
/// needs. Which width the user gives them is left alone until a longer text comes.
class ColumnRoom : public QObject
{
public:
    /// The table's child.
    explicit ColumnRoom(QTableWidget &table);

    /// For the heads and as many rows as are seen.
    void widen();

private:
    void beginAnew();

    QTableWidget &m_table;
    std::vector<int> m_needed; ///< by column, as far as known
};

} // namespace refdialer
