// SPDX-License-Identifier: MIT
#pragma once

#include "ShownConnections.h"

class QString;
class QTableView;

namespace refdialer
{

/// What several connections have taken together.
struct HistorySum {
    int count = 0;
    bool isOfSelection = false;
    ConnectionValues values;
};

/// Of the selected rows, or of all that are shown where none is selected.
HistorySum sumOf(const QTableView &table, const ShownConnections &shown);

/// One line for the user.
QString sumText(const HistorySum &sum);

} // namespace refdialer
