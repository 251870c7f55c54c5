// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QTableWidget;

namespace refdialer
{

/// The selected rows as the table shows them, in its order and without hidden columns:
/// a line for each, the cells apart by tabs. Empty if none is selected.
QString selectedText(const QTableWidget &table);

/// Opens the table's context menu as a click with the right button on the current row
/// would, or on the first selected one, or else on the first in sight.
void openContextMenu(QTableWidget &table);

} // namespace refdialer
