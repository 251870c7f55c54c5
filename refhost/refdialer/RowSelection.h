// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QTableWidget;

namespace refhost
{

/// The selected rows and the current cell of a table that is about to be loaded
/// anew. A table keeps them at their place, where another record may stand then;
/// this keeps them at what they show.
class RowSelection
{
public:
    explicit RowSelection(QTableWidget &table);

    /// Selects what was selected, where it is still there, and nothing else.
    void restore() const;

private:
    QTableWidget &m_table;
    QList<QString> m_selected;
    QString m_current;
    int m_currentColumn;
};

} // namespace refhost
