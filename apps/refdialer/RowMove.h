// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class QTableWidget;

namespace refdialer
{

/// Puts the rows of a table into another order: `order` has the place where each row
/// stands now, from the new top. Selection, current cell and all else that refers to cells
/// moves with them, as when the table sorts itself.
void moveRows(QTableWidget &table, const std::vector<int> &order);

} // namespace refdialer
