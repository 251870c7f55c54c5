// SPDX-License-Identifier: MIT
#include "MenuKeeper.h"

#include <QMenu>
#include <QTableWidget>

#include <utility>

MenuKeeper::MenuKeeper(const QTableWidget *table)
    : m_connection(QObject::connect(table, &QObject::destroyed,
                                    [this](const QObject *dying) { keepMenusOf(dying); }))
{
}

MenuKeeper::~MenuKeeper()
{
    QObject::disconnect(m_connection);
    // Not at once, and not while the question is open: the event loop of another menu
    // would delete them too early.
    for (QMenu *menu : std::as_const(m_menus))
        menu->deleteLater();
}

void MenuKeeper::keepMenusOf(const QObject *table)
{
    m_menus = table->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
    for (QMenu *menu : std::as_const(m_menus))
        menu->setParent(nullptr, menu->windowFlags());
}
