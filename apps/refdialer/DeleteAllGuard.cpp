// SPDX-License-Identifier: MIT
#include "DeleteAllGuard.h"

#include "VisibleSelection.h"

#include <QAction>
#include <QChildEvent>
#include <QMenu>
#include <QShortcut>
#include <QTableWidget>

namespace refdialer
{

namespace
{

/// The menu's last entry, and the letter that does the same.
void disableDeleteAll(QMenu &menu, const QString &reason)
{
    if (menu.actions().isEmpty())
        return;
    QAction *const deleteAll = menu.actions().constLast();
    deleteAll->setEnabled(false);
    deleteAll->setToolTip(reason);
    deleteAll->setStatusTip(reason);
    menu.setToolTipsVisible(true);
    for (QShortcut *const shortcut : menu.findChildren<QShortcut *>()) {
        if (shortcut->key() == QKeySequence(Qt::Key_A))
            shortcut->setEnabled(false);
    }
}

} // namespace

DeleteAllGuard::DeleteAllGuard(QTableWidget &table, const VisibleSelection &selection)
    : QObject(&table)
    , m_selection(selection)
{
    table.installEventFilter(this);
}

/// A menu is whole when it is about to be shown, which is when it is polished.
bool DeleteAllGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished && m_selection.hidesRows()) {
        if (auto *const menu = qobject_cast<QMenu *>(static_cast<QChildEvent *>(event)->child()))
            disableDeleteAll(*menu, tr("Not while rows are hidden: it would delete these too. "
                                       "Select all rows that you see (Ctrl+A) and delete them, "
                                       "or clear the search."));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace refdialer
