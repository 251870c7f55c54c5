// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QObject>

class QTableWidget;

namespace refdialer
{

class VisibleSelection;

/// While rows of the plug-in's table are hidden, its context menu offers to delete the
/// selected ones only: to delete all would take the hidden ones too, which the user does
/// not see.
class DeleteAllGuard : public QObject
{
    Q_OBJECT

public:
    /// A child of the table, whose selection is given.
    DeleteAllGuard(QTableWidget &table, const VisibleSelection &selection);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const VisibleSelection &m_selection;
};

} // namespace refdialer
