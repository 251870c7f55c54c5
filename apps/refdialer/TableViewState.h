// SPDX-License-Identifier: MIT
#pragma once

#include "ShownConnections.h"

#include <QItemSelection>

class QTableWidget;

namespace refdialer
{

/// The selected rows, the current cell and the scrolling position of a table that
/// is about to be loaded anew. A table keeps them at their place, where another
/// connection may stand then; this keeps them at their connections.
class TableViewState
{
public:
    TableViewState(const QTableWidget &table, const ShownConnections &shown);

    /// Selects what was selected, where it is still there, and nothing else. What was
    /// at the top is at the top again, unless that was the beginning.
    void restore(QTableWidget &table, const ShownConnections &shown) const;

private:
    void restoreSelection(QTableWidget &table, const ShownConnections &shown) const;
    void restoreScrolling(QTableWidget &table, const ShownConnections &shown) const;

    std::vector<std::uint64_t> m_selected;
    std::uint64_t m_current;
    int m_currentColumn;
    std::vector<std::uint64_t> m_visible; ///< from the top; empty at the beginning
    int m_horizontal;
};

} // namespace refdialer
