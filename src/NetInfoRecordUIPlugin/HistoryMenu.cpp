// SPDX-License-Identifier: MIT
#include "ConnectionHistoryDlg.h"

#include "Log.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>
#include <QTableWidget>

#include <new>

void ConnectionHistoryDlg::createTableRightClickAction()
{
    const Log::Operation log(Log::enter, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    m_pContextMenu = new (std::nothrow) QMenu(m_pConnectionTblTreeWidget);
    if (log.isMissing(m_pContextMenu, __LINE__))
        return;
    m_pMenuDeleteShortcut =
        new (std::nothrow) QShortcut(QKeySequence(Qt::Key_Delete), m_pContextMenu);
    if (log.isMissing(m_pMenuDeleteShortcut, __LINE__))
        return;
    m_pMenuDShortcut = new (std::nothrow) QShortcut(m_pContextMenu);
    m_pMenuAShortcut = new (std::nothrow) QShortcut(m_pContextMenu);
    if (log.isAnyMissing({m_pMenuDShortcut, m_pMenuAShortcut}, __LINE__))
        return;
    m_pMenuDShortcut->setKey(QKeySequence(Qt::Key_D));
    m_pMenuAShortcut->setKey(QKeySequence(Qt::Key_A));

    m_pDeleteAction = new (std::nothrow) QAction(tr(QLatin1String("IDS_MENU_DELETE")), this);
    if (log.isMissing(m_pDeleteAction, __LINE__))
        return;
    m_pContextMenu->addAction(m_pDeleteAction);
    m_pDeleteAllAction = new (std::nothrow) QAction(tr(QLatin1String("IDS_MENU_DELETEALL")), this);
    if (log.isMissing(m_pDeleteAllAction, __LINE__))
        return;
    m_pContextMenu->addAction(m_pDeleteAllAction);

    connect(m_pDeleteAction, SIGNAL(triggered()), this, SLOT(onDelete()));
    connect(m_pDeleteAllAction, SIGNAL(triggered()), this, SLOT(onDeleteAll()));
    connect(m_pMenuDeleteShortcut, SIGNAL(activated()), this, SLOT(onDelete()));
    connect(m_pMenuDShortcut, SIGNAL(activated()), this, SLOT(onDelete()));
    connect(m_pMenuAShortcut, SIGNAL(activated()), this, SLOT(onDeleteAll()));
    log.exit(__LINE__);
}

void ConnectionHistoryDlg::showTableContextMenu(const QPoint &point)
{
    const Log::Operation log(Log::start, Log::connectionHistoryDlg, __func__);
    log.entry(__LINE__);
    if (log.isMissing(m_pConnectionTblTreeWidget, __LINE__))
        return;
    // The bound is inclusive and the horizontal place is not asked; both are meant.
    if (point.y() < 0 || point.y() > m_pConnectionTblTreeWidget->geometry().height())
        return;
    if (!m_pConnectionTblTreeWidget->indexAt(point).isValid())
        return;
    createTableRightClickAction();
    if (m_pConnectionTblTreeWidget->rowCount() == 0 || !m_pContextMenu)
        return;
    m_pContextMenu->exec(m_pConnectionTblTreeWidget->viewport()->mapToGlobal(point));
    log.exit(__LINE__);
}
